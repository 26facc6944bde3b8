#include "companion/aircraft/pass_words.h"
#include "companion/aircraft/sky_dome.h"
#include "companion/aircraft/sky_path.h"
#include "companion/aircraft/squawk_words.h"

#include <QAccessible>
#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>

namespace skyvane {

namespace {

const HomeLocation home{.latitude = 50, .longitude = 8, .label = "Home"};

/// South-west of home, on its way to the north-east: it passes overhead.
Aircraft inbound()
{
    return {.hex = "a",
        .altBaro = Altitude::feet(35000),
        .groundSpeed = 480,
        .track = 32.6,
        .lat = 49.8,
        .lon = 7.8,
        .seenPos = 0,
        .distanceNM = 14.3,
        .directionDeg = 212};
}

} // namespace

TEST(SkyPath, anAircraftThatComesRisesUntilItIsOverheadAndSinksAfterwards)
{
    const auto path = skyPath(inbound(), home);
    ASSERT_GT(path.size(), 20U);
    EXPECT_EQ(path.front().in.count(), 0);
    EXPECT_NEAR(*path.front().where.elevationDeg, 21.7, 1.5);
    EXPECT_NEAR(path.front().where.bearingDeg, 212, 2);
    const auto top = std::ranges::max_element(
        path, {}, [](const SkyPathPoint& point) { return *point.where.elevationDeg; });
    EXPECT_GT(*top->where.elevationDeg, 75);
    EXPECT_NEAR(static_cast<double>(top->in.count()), 107, 16);
    EXPECT_NEAR(path.back().where.bearingDeg, 33, 5);
}

TEST(SkyPath, whatDoesNotFlyOrSaysNotWhereToHasNone)
{
    Aircraft parked = inbound();
    parked.altBaro = Altitude::ground();
    EXPECT_TRUE(skyPath(parked, home).empty());
    Aircraft adrift = inbound();
    adrift.track.reset();
    EXPECT_TRUE(skyPath(adrift, home).empty());
    Aircraft lost = inbound();
    lost.lat.reset();
    EXPECT_TRUE(skyPath(lost, home).empty());
    Aircraft below = inbound();
    below.lat = 40;
    EXPECT_TRUE(skyPath(below, home).empty());
}

TEST(PassText, whenAndHowHighAnAircraftPassesIsSaid)
{
    EXPECT_EQ(passText(inbound(), home), "It passes right above you in 2 min.");
    Aircraft aside = inbound();
    aside.lon = 7.9;
    EXPECT_EQ(passText(aside, home), "It passes 61° high in the south-east in 2 min.");
    Aircraft leaving = inbound();
    leaving.track = 212;
    EXPECT_EQ(passText(leaving, home), "It is flying away.");
    Aircraft hovering = inbound();
    hovering.groundSpeed = 20;
    EXPECT_EQ(passText(hovering, home), "");
}

TEST(SkyDome, theHorizonIsAroundAndTheZenithInTheMiddle)
{
    SkyDome dome;
    dome.resize(300, 300);
    const QPointF middle = dome.placeOf({.bearingDeg = 123, .elevationDeg = 90});
    EXPECT_EQ(middle.toPoint(), QPoint(150, 150));
    const QPointF north = dome.placeOf({.bearingDeg = 0, .elevationDeg = 0});
    const QPointF east = dome.placeOf({.bearingDeg = 90, .elevationDeg = 45});
    EXPECT_NEAR(north.x(), 150, 0.01);
    EXPECT_LT(north.y(), 40);
    EXPECT_NEAR(east.x() - 150, (150 - north.y()) / 2, 0.5);
    EXPECT_EQ(dome.placeOf({.bearingDeg = 0, .elevationDeg = -20}), north);
    EXPECT_EQ(dome.placeOf({.bearingDeg = 0}), north);
}

TEST(SkyDome, theAircraftAndItsWayAreDrawnAndSaid)
{
    SkyDome dome;
    dome.resize(300, 300);
    dome.showSky({.color = Qt::green}, {});
    const QImage empty = dome.grab().toImage();
    const auto path = skyPath(inbound(), home);
    dome.showSky({.where = path.front().where, .track = 32, .path = path, .color = Qt::green}, "Look up.");
    const QImage full = dome.grab().toImage();
    const auto isGreen = [&](const QPointF& place) {
        for (int x = -2; x <= 2; ++x) {
            for (int y = -2; y <= 2; ++y) {
                if (full.pixelColor(place.toPoint() + QPoint{x, y}).green() > 200)
                    return true;
            }
        }
        return false;
    };
    EXPECT_NE(full, empty);
    EXPECT_TRUE(isGreen(dome.placeOf(path.front().where)));
    EXPECT_TRUE(isGreen(dome.placeOf(path[path.size() / 2].where)));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&dome)->text(QAccessible::Description), "Look up.");
}

TEST(SquawkText, aCodeIsExplainedWhereItMeansSomethingEverywhere)
{
    EXPECT_EQ(squawkText("7700"), "7700 · emergency");
    EXPECT_EQ(squawkText("7000"), "7000 · visual flight");
    EXPECT_EQ(squawkText("4321"), "4321");
}

} // namespace skyvane
