#include "core/views/sample_entry.h"

#include "platform/pinned.h"
#include "tests/core/sample_sky.h"

#include <gtest/gtest.h>

#include <vector>

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
    const std::vector<Aircraft> expected{
        {
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
        },
        {
            .hex = "a2c4e6",
            .flight = "N757LY  ",
            .registration = "N757LY",
            .typeCode = "C152",
            .altBaro = Altitude::feet(1500),
            .groundSpeed = 95.0,
            .track = 180.0,
            .lat = 45.55,
            .lon = -122.60,
            .seenPos = 1.0,
            .distanceNM = 6.8,
            .directionDeg = 80.0,
        },
        {
            .hex = "a3d5f7",
            .flight = "QXE201  ",
            .registration = "N201QX",
            .typeCode = "E75L",
            .altBaro = Altitude::feet(8200),
            .groundSpeed = 270.0,
            .track = 270.0,
            .lat = 45.40,
            .lon = -122.75,
            .seenPos = 1.0,
            .distanceNM = 10.4,
            .directionDeg = 195.0,
        },
        {
            .hex = "a4e6a8",
            .flight = "UPS2914 ",
            .registration = "N354UP",
            .typeCode = "B763",
            .altBaro = Altitude::feet(24000),
            .groundSpeed = 450.0,
            .track = 135.0,
            .lat = 45.70,
            .lon = -122.40,
            .seenPos = 1.0,
            .distanceNM = 15.1,
            .directionDeg = 48.0,
        },
        {
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
        },
    };
    EXPECT_EQ(sampleEntry().aircraft, expected);
}

} // namespace
} // namespace skyvane
