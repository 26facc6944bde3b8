#include "paint/pictograms.h"

#include "tests/paint/picture.h"

#include <QTransform>

#include <gmock/gmock.h>

namespace skyvane {

namespace {

constexpr const char* names[] = {"airplane", "airplane.departure", "house"};

QImage drawn(std::string name, double side = 80, double rotation = 0, Point center = {50, 50})
{
    return test::picture({100, 100},
        {Pictogram{
            .center = center, .side = side, .name = name, .rotation = rotation, .color = test::white}});
}

double inkBetween(const QImage& image, int left, int right)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = left; x < right; ++x)
            sum += test::brightness(image, x, y);
    }
    return sum;
}

} // namespace

TEST(Pictograms, everyOneFillsItsSquareAndNoMore)
{
    for (const char* name : names) {
        const QRectF bounds = pictogramOutline(name)->boundingRect();
        EXPECT_TRUE(QRectF(-0.501, -0.501, 1.002, 1.002).contains(bounds)) << name;
        EXPECT_GT(bounds.width(), 0.88) << name;
        EXPECT_GT(bounds.height(), 0.75) << name;
    }
}

TEST(Pictograms, inkStaysInTheSquare)
{
    for (const char* name : names)
        EXPECT_TRUE(QRect(10, 10, 80, 80).contains(test::ink(drawn(name)))) << name;
}

TEST(Pictograms, theAirplaneIsSymmetricAboutItsAxis)
{
    const QImage image = drawn("airplane");
    EXPECT_LT(test::difference(image, image.mirrored(/*horizontal=*/false, /*vertical=*/true)), 0.5);
}

TEST(Pictograms, theAirplanesNoseIsToTheRight)
{
    const QImage image = drawn("airplane");
    EXPECT_LT(test::ink(image.copy(75, 0, 25, 100)).height(), 20); // The nose is slim,
    EXPECT_GT(test::ink(image.copy(10, 0, 15, 100)).height(), 25); // the tailplane wide.
}

TEST(Pictograms, theAirplanesWingsSweepBack)
{
    const QImage image = drawn("airplane");
    const QRect tips = test::ink(image.copy(0, 10, 100, 8));
    const QRect roots = test::ink(image.copy(0, 36, 100, 4));
    EXPECT_GT(roots.right(), tips.right() + 10);
}

TEST(Pictograms, aQuarterTurnClockwisePointsTheNoseDown)
{
    const QImage level = drawn("airplane");
    const QImage turned = drawn("airplane", 80, 90);
    EXPECT_LT(test::difference(turned, level.transformed(QTransform{}.rotate(90))), 1);
    EXPECT_LT(test::difference(drawn("airplane", 80, 450), turned), 0.1);
    EXPECT_LT(test::difference(drawn("airplane", 80, -270), turned), 0.1);
}

TEST(Pictograms, theAirplaneIsLegibleAtSevenPoints)
{
    const QImage image = test::picture({11, 11},
        {Pictogram{
            .center = {5.5, 5.5}, .side = 7, .name = "airplane", .rotation = 0, .color = test::white}});
    EXPECT_GT(test::brightness(image, 5, 5), 230);
    EXPECT_GE(test::ink(image).width(), 6);
    EXPECT_GE(test::ink(image).height(), 6);
    EXPECT_LT(test::brightness(image, 8, 3), 30);
    EXPECT_LT(test::brightness(image, 8, 8), 30);
}

TEST(Pictograms, theDepartingAirplaneClimbsToTheRightAboveARunway)
{
    const QImage image = drawn("airplane.departure");
    const QImage inTheAir = image.copy(0, 0, 100, 72);
    EXPECT_LT(test::ink(inTheAir.copy(50, 0, 50, 72)).top(), test::ink(inTheAir.copy(0, 0, 30, 72)).top());
    const QRect runway = test::ink(image.copy(0, 76, 100, 24));
    EXPECT_GT(runway.width(), 65);
    EXPECT_LT(runway.height(), 10);
    EXPECT_TRUE(test::ink(image.copy(12, 73, 76, 3)).isEmpty());
}

TEST(Pictograms, theHouseHasARoofAChimneyAndADoor)
{
    const QImage image = drawn("house");
    EXPECT_GT(test::brightness(image, 50, 16), 200); // Ridge,
    EXPECT_GT(test::brightness(image, 73, 20), 200); // chimney,
    EXPECT_LT(test::brightness(image, 27, 20), 20); // only one,
    EXPECT_LT(test::brightness(image, 50, 75), 20); // open door
    EXPECT_GT(test::brightness(image, 33, 75), 200); // in a wall.
}

TEST(Pictograms, aNameThatIsNotKnownDrawsNothing)
{
    EXPECT_EQ(pictogramOutline("helicopter"), nullptr);
    EXPECT_EQ(pictogramOutline(""), nullptr);
    EXPECT_EQ(inkBetween(drawn("Airplane"), 0, 100), 0);
}

} // namespace skyvane
