#include "companion/map/earth_map.h"

#include "core/radar/great_circle.h"
#include "tests/session/wait_for.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <QWheelEvent>

#include <optional>

namespace skyvane {

namespace {

constexpr Coordinate munich{.latitude = 48.137, .longitude = 11.575};

class EarthMapTest : public testing::Test {
protected:
    EarthMapTest()
    {
        QObject::connect(
            &map, &EarthMap::homeChosen, [this](const Coordinate& position) { chosen = position; });
        map.resize(500, 300);
        map.showSubject({.home = munich, .radiusNM = 25});
        map.show();
    }

    QAbstractButton& button(const QString& name)
    {
        for (auto* found : map.findChildren<QAbstractButton*>()) {
            if (found->accessibleName() == name)
                return *found;
        }
        throw std::runtime_error{"no such button"};
    }

    double kilometresFromMunich() const { return 1.852 * GreatCircle::distanceNM(munich, *chosen); }

    void turnWheel(int angle)
    {
        QWheelEvent event{{250, 150}, {250, 150}, {}, {0, angle}, {}, {}, Qt::NoScrollPhase, false};
        QApplication::sendEvent(&map, &event);
    }

    EarthMap map;
    std::optional<Coordinate> chosen;
};

} // namespace

TEST_F(EarthMapTest, showsHomeWithTheRadiusAroundIt)
{
    EXPECT_NEAR(map.frame().place(munich).x(), 250, 0.5);
    EXPECT_NEAR(map.frame().place(munich).y(), 150, 0.5);
    EXPECT_NEAR(25 * map.frame().pointsPerNM(), 126, 1);
    map.showSubject({.home = munich, .radiusNM = 250});
    EXPECT_NEAR(250 * map.frame().pointsPerNM(), 126, 1);
}

TEST_F(EarthMapTest, isPaintedOnceItsDataHaveCome)
{
    ASSERT_TRUE(test::waitFor([&] { return map.isReady(); }, std::chrono::seconds{20}));
    const QImage image = map.grab().toImage();
    const QColor paper = map.palette().color(QPalette::Base);
    int marked = 0;
    for (int x = 5; x < image.width() - 50; ++x)
        marked += image.pixelColor(x, image.height() / 3) != paper ? 1 : 0;
    EXPECT_GT(marked, 0);
}

TEST_F(EarthMapTest, aClickChoosesHome)
{
    QTest::mouseClick(&map, Qt::LeftButton, {}, {250, 150});
    ASSERT_TRUE(chosen);
    EXPECT_LT(kilometresFromMunich(), 0.5);
    QTest::mouseClick(&map, Qt::LeftButton, {}, {250 + 126, 150});
    EXPECT_NEAR(kilometresFromMunich(), 25 * 1.852, 0.5);
    EXPECT_GT(chosen->longitude, munich.longitude);
    chosen.reset();
    QTest::mouseClick(&map, Qt::RightButton, {}, {250, 150});
    EXPECT_FALSE(chosen);
}

TEST_F(EarthMapTest, aDragMovesTheMapAndChoosesNothing)
{
    QTest::mousePress(&map, Qt::LeftButton, {}, {250, 150});
    QTest::mouseMove(&map, {300, 150});
    QTest::mouseMove(&map, {350, 170});
    QTest::mouseRelease(&map, Qt::LeftButton, {}, {350, 170});
    EXPECT_FALSE(chosen);
    EXPECT_NEAR(map.frame().place(munich).x(), 350, 1);
    EXPECT_NEAR(map.frame().place(munich).y(), 170, 1);
    map.showSubject({.home = munich, .radiusNM = 50});
    EXPECT_NEAR(map.frame().place(munich).x(), 350, 1) << "what was moved stays";
    button("Back to home").click();
    EXPECT_NEAR(map.frame().place(munich).x(), 250, 0.5);
}

TEST_F(EarthMapTest, keysMoveZoomAndChoose)
{
    const double before = map.frame().pointsPerNM();
    QTest::keyClick(&map, Qt::Key_Plus);
    EXPECT_GT(map.frame().pointsPerNM(), before);
    QTest::keyClick(&map, Qt::Key_Minus);
    EXPECT_NEAR(map.frame().pointsPerNM(), before, 1e-9);
    QTest::keyClick(&map, Qt::Key_Right);
    EXPECT_NEAR(map.frame().place(munich).x(), 200, 1);
    QTest::keyClick(&map, Qt::Key_Down);
    EXPECT_NEAR(map.frame().place(munich).y(), 100, 1);
    QTest::keyClick(&map, Qt::Key_Return);
    ASSERT_TRUE(chosen);
    EXPECT_GT(chosen->longitude, munich.longitude);
    EXPECT_LT(chosen->latitude, munich.latitude);
    QTest::keyClick(&map, Qt::Key_Left);
    QTest::keyClick(&map, Qt::Key_Up);
    EXPECT_NEAR(map.frame().place(munich).x(), 250, 1);
    QTest::keyClick(&map, Qt::Key_Left);
    QTest::keyClick(&map, Qt::Key_Home);
    EXPECT_NEAR(map.frame().place(munich).x(), 250, 0.5);
}

TEST_F(EarthMapTest, buttonsZoomToTheWholeEarthAndNoFarther)
{
    const double before = map.frame().pointsPerNM();
    button("Zoom in").click();
    EXPECT_GT(map.frame().pointsPerNM(), before);
    for (int click = 0; click < 60; ++click)
        button("Zoom out").click();
    EXPECT_GE(map.frame().pointsPerNM(), 0.0199);
    for (int click = 0; click < 60; ++click)
        button("Zoom in").click();
    EXPECT_LE(map.frame().pointsPerNM(), 150.1);
    EXPECT_NEAR(map.frame().place(munich).x(), 250, 1);
}

TEST_F(EarthMapTest, itsButtonsAreAtTheSideAtWhichLinesEnd)
{
    EXPECT_GT(button("Zoom in").x(), 400);
    map.setLayoutDirection(Qt::RightToLeft);
    map.resize(501, 300);
    EXPECT_LT(button("Zoom in").geometry().right(), 100);
    const QPointF east
        = map.frame().place({.latitude = munich.latitude, .longitude = munich.longitude + 0.1});
    EXPECT_GT(east.x(), 251); // East stays on the right.
}

TEST_F(EarthMapTest, theWheelTurnsThePageUnlessTheMapHasTheKeyboard)
{
    const double before = map.frame().pointsPerNM();
    map.clearFocus();
    turnWheel(120);
    EXPECT_EQ(map.frame().pointsPerNM(), before);
    map.activateWindow();
    map.setFocus();
    ASSERT_TRUE(test::waitFor([&] { return map.hasFocus(); }));
    turnWheel(120);
    EXPECT_GT(map.frame().pointsPerNM(), before);
}

TEST_F(EarthMapTest, aHomeFarAwayIsGoneTo)
{
    QTest::keyClick(&map, Qt::Key_Right);
    const Coordinate tokyo{.latitude = 35.68, .longitude = 139.69};
    map.showSubject({.home = tokyo, .radiusNM = 25});
    EXPECT_NEAR(map.frame().place(tokyo).x(), 250, 0.5);
}

TEST_F(EarthMapTest, isNamedForAScreenReader)
{
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&map);
    EXPECT_EQ(accessible->text(QAccessible::Name), "Map around your home");
    EXPECT_TRUE(accessible->text(QAccessible::Description).contains("Arrow keys"));
    for (const auto* found : map.findChildren<QAbstractButton*>())
        EXPECT_FALSE(found->accessibleName().isEmpty());
}

} // namespace skyvane
