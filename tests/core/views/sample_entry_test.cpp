#include "core/views/sample_entry.h"

#include "tests/core/sample_sky.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(SampleEntry, isMadeNowAroundAHomeOfItsOwn)
{
    const Pinned<Date> clock{test::morning};
    const SkyEntry entry = sampleEntry("#ff0000");
    EXPECT_EQ(entry.date, test::morning);
    EXPECT_EQ(entry.radiusNM, 25.0);
    EXPECT_EQ(entry.home, (HomeLocation{.latitude = 45.5, .longitude = -122.6, .label = "Home"}));
    EXPECT_TRUE(entry.isSample);
    EXPECT_EQ(entry.unit, "mi");
    EXPECT_EQ(entry.accentHex, "#ff0000");
    EXPECT_FALSE(sampleEntry().accentHex);
}

TEST(SampleEntry, holdsFiveAircraftTheLastOneMilitary)
{
    const SkyEntry entry = sampleEntry();
    ASSERT_EQ(entry.aircraft.size(), 5U);
    const Aircraft first{
        .hex = "a1b2c3",
        .flight = "ASA512  ",
        .registration = "N512AS",
        .typeCode = "B739",
        .altBaro = Altitude::feet(12500),
        .groundSpeed = 320.0,
        .track = 45.0,
        .lat = 45.60,
        .lon = -122.70,
        .seenPos = 1.0,
        .distanceNM = 3.2,
        .directionDeg = 310.0,
    };
    EXPECT_EQ(entry.aircraft.front(), first);
    const Aircraft last{
        .hex = "ae01ce",
        .flight = "RCH440  ",
        .registration = "",
        .typeCode = "C17",
        .altBaro = Altitude::feet(18000),
        .groundSpeed = 380.0,
        .track = 10.0,
        .lat = 45.30,
        .lon = -122.55,
        .seenPos = 1.0,
        .dbFlags = 1,
        .distanceNM = 18.9,
        .directionDeg = 170.0,
    };
    EXPECT_EQ(entry.aircraft.back(), last);
}

} // namespace
} // namespace skyvane
