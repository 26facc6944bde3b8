#include "alerts/closest_approach.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace skyvane {

namespace {

const Coordinate home{.latitude = 50, .longitude = 8};

/// Ten miles south of home, due north at ten miles a minute and as high as two miles.
Aircraft approaching()
{
    return {
        .hex = "4ca853",
        .altBaro = Altitude::feet(12'152),
        .groundSpeed = 600,
        .track = 0,
        .lat = 50 - 10.0 / 60,
        .lon = 8.0,
    };
}

SkyPosition found(const Aircraft& aircraft)
{
    return closestApproach(aircraft, home).value();
}

} // namespace

TEST(ClosestApproachTest, isWhereTheTrackPassesHome)
{
    const SkyPosition pass = found(approaching());
    EXPECT_NEAR(pass.in.count(), 60, 0.2);
    EXPECT_NEAR(pass.distanceNM, 0, 1e-6);
    EXPECT_NEAR(pass.elevationDeg, 90, 1e-3);
}

TEST(ClosestApproachTest, isSeenInTheDirectionInWhichItPasses)
{
    Aircraft aircraft = approaching();
    aircraft.lon = 8.0 + 2.0 / 60 / 0.642788; // Two miles east.
    const SkyPosition pass = found(aircraft);
    EXPECT_NEAR(pass.in.count(), 60, 0.2);
    EXPECT_NEAR(pass.distanceNM, 2, 0.02);
    EXPECT_NEAR(pass.bearingDeg, 90, 1);
    EXPECT_NEAR(pass.elevationDeg, 45, 0.5);
    aircraft.lon = 8.0 - 2.0 / 60 / 0.642788;
    EXPECT_NEAR(found(aircraft).bearingDeg, 270, 1);
}

TEST(ClosestApproachTest, countsFromThePositionAndNotFromTheAnswer)
{
    Aircraft aircraft = approaching();
    aircraft.seenPos = 12.5;
    EXPECT_NEAR(found(aircraft).in.count(), 47.5, 0.2);
}

TEST(ClosestApproachTest, isPastForOneThatFliesAway)
{
    Aircraft aircraft = approaching();
    aircraft.track = 180;
    EXPECT_NEAR(found(aircraft).in.count(), -60, 0.2);
}

TEST(ClosestApproachTest, isHigherOfOneThatClimbsAndLowerOfOneThatSinks)
{
    Aircraft aircraft = approaching();
    aircraft.lon = 8.0 + 2.0 / 60 / 0.642788;
    aircraft.baroRate = 6'076;
    EXPECT_NEAR(found(aircraft).elevationDeg, 56.3, 0.5);
    aircraft.baroRate = -6'076;
    EXPECT_NEAR(found(aircraft).elevationDeg, 26.6, 0.5);
}

TEST(ClosestApproachTest, isNoneOfOneThatWillHaveLanded)
{
    Aircraft aircraft = approaching();
    aircraft.altBaro = Altitude::feet(2'900); // On its final approach.
    aircraft.baroRate = -3'000;
    EXPECT_FALSE(closestApproach(aircraft, home));
}

TEST(ClosestApproachTest, whoeverSinksLevelsOffBeforeTheFinalApproach)
{
    Aircraft aircraft = approaching();
    aircraft.lon = 8.0 + 2.0 / 60 / 0.642788;
    aircraft.baroRate = -13'000;
    const double levelled = found(aircraft).elevationDeg;
    aircraft.altBaro = Altitude::feet(3'000);
    aircraft.baroRate = 0;
    EXPECT_DOUBLE_EQ(levelled, found(aircraft).elevationDeg);
}

TEST(ClosestApproachTest, nobodyClimbsForEver)
{
    Aircraft aircraft = approaching();
    aircraft.lat = 45.0;
    aircraft.lon = 8.2;
    aircraft.altBaro = Altitude::feet(30'000);
    aircraft.baroRate = 6'000;
    const double capped = found(aircraft).elevationDeg;
    aircraft.altBaro = Altitude::feet(45'000);
    aircraft.baroRate = 0;
    EXPECT_DOUBLE_EQ(capped, found(aircraft).elevationDeg);
    aircraft.altBaro = Altitude::feet(60'000);
    aircraft.baroRate = 500;
    EXPECT_GT(found(aircraft).elevationDeg, capped);
}

TEST(ClosestApproachTest, theGeometricHeightIsTheTrueOne)
{
    Aircraft aircraft = approaching();
    aircraft.lon = 8.0 + 2.0 / 60 / 0.642788;
    aircraft.altGeom = 24'304;
    EXPECT_NEAR(found(aircraft).elevationDeg, 63.4, 0.5);
}

TEST(ClosestApproachTest, acrossTheDateLineIsNear)
{
    Aircraft aircraft = approaching();
    aircraft.lat = 0.0;
    aircraft.lon = -179.95;
    aircraft.track = 270;
    const auto pass = closestApproach(aircraft, {.latitude = 0, .longitude = 179.95}).value();
    EXPECT_NEAR(pass.in.count(), 36, 0.2);
    EXPECT_NEAR(pass.distanceNM, 0, 1e-6);
}

TEST(ClosestApproachTest, atThePoleEveryWayIsSouth)
{
    Aircraft aircraft = approaching();
    aircraft.lat = 89.9;
    aircraft.lon = 50.0;
    const auto pass = closestApproach(aircraft, {.latitude = 90, .longitude = 0}).value();
    EXPECT_NEAR(pass.in.count(), 36, 0.2);
    EXPECT_NEAR(pass.distanceNM, 0, 1e-6);
}

TEST(ClosestApproachTest, isUnknownWithoutPositionTrackSpeedOrHeight)
{
    for (const auto forget : {+[](Aircraft& one) { one.lat.reset(); },
             +[](Aircraft& one) { one.track.reset(); }, +[](Aircraft& one) { one.groundSpeed.reset(); },
             +[](Aircraft& one) { one.groundSpeed = 0; }, +[](Aircraft& one) { one.altBaro.reset(); },
             +[](Aircraft& one) { one.altBaro = Altitude::ground(); }}) {
        Aircraft aircraft = approaching();
        forget(aircraft);
        EXPECT_FALSE(closestApproach(aircraft, home));
    }
}

TEST(ClosestApproachTest, absurdNumbersAreNoPass)
{
    for (const double absurd : {1e308, -1e308, std::numeric_limits<double>::infinity()}) {
        Aircraft aircraft = approaching();
        aircraft.track = absurd;
        aircraft.lat = absurd;
        const auto pass = closestApproach(aircraft, home);
        EXPECT_TRUE(!pass || std::isfinite(pass->in.count())) << absurd;
    }
}

} // namespace skyvane
