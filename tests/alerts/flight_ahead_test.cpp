#include "alerts/flight_ahead.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

using namespace std::chrono_literals;

const Coordinate home{.latitude = 50, .longitude = 8};

/// Twenty miles south of home and two east of it, due north at ten miles a minute.
Aircraft approaching()
{
    return {
        .hex = "4ca853",
        .altBaro = Altitude::feet(12'152),
        .groundSpeed = 600,
        .track = 0,
        .lat = 50 - 20.0 / 60,
        .lon = 8.0 + 2.0 / 60 / 0.642788,
    };
}

} // namespace

TEST(FlightAhead, beginsWhereTheAircraftWasSeen)
{
    Aircraft aircraft = approaching();
    aircraft.seenPos = 5;
    const SkyPosition seen = FlightAhead::of(aircraft, home).value().after(0s).value();
    EXPECT_DOUBLE_EQ(seen.in.count(), -5);
    EXPECT_NEAR(seen.distanceNM, 20.1, 0.05);
    EXPECT_NEAR(seen.bearingDeg, 174.3, 0.2);
}

TEST(FlightAhead, isNearestAtTheTimeOfItsClosestApproachAndNeitherBeforeNorAfter)
{
    const FlightAhead flight = FlightAhead::of(approaching(), home).value();
    const auto closest = flight.timeOfClosestApproach();
    EXPECT_NEAR(closest.count(), 120, 0.5);
    const double least = flight.after(closest).value().distanceNM;
    for (const auto time : {closest - 10s, closest + 10s}) {
        EXPECT_GT(flight.after(time).value().distanceNM, least);
        EXPECT_LT(flight.after(time).value().elevationDeg, flight.after(closest).value().elevationDeg);
    }
    EXPECT_NEAR(flight.after(240s).value().distanceNM, 20.1, 0.1);
}

TEST(FlightAhead, endsOnTheGround)
{
    Aircraft landing = approaching();
    landing.altBaro = Altitude::feet(2'000);
    landing.baroRate = -1'000;
    const FlightAhead flight = FlightAhead::of(landing, home).value();
    EXPECT_TRUE(flight.after(60s));
    EXPECT_FALSE(flight.after(120s));
}

TEST(FlightAhead, isUnknownWithoutPositionTrackSpeedOrHeight)
{
    for (const auto& forget :
        {+[](Aircraft& one) { one.lat.reset(); }, +[](Aircraft& one) { one.track.reset(); },
            +[](Aircraft& one) { one.groundSpeed.reset(); }, +[](Aircraft& one) { one.altBaro.reset(); }}) {
        Aircraft aircraft = approaching();
        forget(aircraft);
        EXPECT_FALSE(FlightAhead::of(aircraft, home));
    }
}

} // namespace skyvane
