#include "host/commands/line_format.h"

#include "host/commands/command.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

const NearestWords asa512{
    .sky = NearestWords::Sky::aircraft,
    .callsign = "ASA512",
    .identity = "B739 · N512AS",
    .type = "B739",
    .registration = "N512AS",
    .distance = "3.7 mi",
    .altitude = "12,500 ft",
    .direction = "north-west",
    .arrow = "↗",
    .count = "5",
    .time = "10:42 AM",
};

std::string filled(std::string_view format, const NearestWords& words = asa512)
{
    return LineFormat::parse(format).fill(words);
}

std::string refusal(std::string_view format)
{
    try {
        LineFormat::parse(format);
        return "";
    } catch (const UsageError& error) {
        return error.what();
    }
}

} // namespace

TEST(LineFormat, placeholdersBecomeWhatTheyName)
{
    EXPECT_EQ(filled(LineFormat::standard), "ASA512 B739 3.7 mi 12,500 ft north-west");
    EXPECT_EQ(filled("{arrow} {identity} ({registration}), {count} at {time}"),
        "↗ B739 · N512AS (N512AS), 5 at 10:42 AM");
    EXPECT_EQ(filled("✈"), "✈");
    EXPECT_EQ(filled(""), "");
}

TEST(LineFormat, doubledBracesAreBraces)
{
    EXPECT_EQ(filled("{{{callsign}}}"), "{ASA512}");
    EXPECT_EQ(filled("{{callsign}}"), "{callsign}");
}

TEST(LineFormat, whatIsEmptyLeavesNoHole)
{
    EXPECT_EQ(filled(LineFormat::standard, {.sky = NearestWords::Sky::aircraft, .callsign = "N1"}), "N1");
    EXPECT_EQ(filled("{type} {callsign} {distance} away", {.sky = {}, .callsign = "N1"}), "N1 away");
}

TEST(LineFormat, itIsOneLineWhateverItHolds)
{
    EXPECT_EQ(filled("a\nb\tc\x1b[0m"), "a b c [0m");
}

TEST(LineFormat, anUnknownPlaceholderIsNamedAndAnsweredWithTheKnownOnes)
{
    EXPECT_EQ(refusal("{callsign} {speed}"),
        "unknown placeholder \"speed\": known are callsign, identity, type, registration, distance, "
        "altitude, "
        "direction, arrow, count, time");
    EXPECT_THAT(refusal("{}"), testing::StartsWith("unknown placeholder \"\""));
    EXPECT_THAT(refusal("{Callsign}"), testing::StartsWith("unknown placeholder \"Callsign\""));
}

TEST(LineFormat, aBraceWithoutItsOtherIsRefused)
{
    for (const char* format : {"{callsign", "callsign}", "{", "}", "{{{callsign", "{callsign}}"})
        EXPECT_THAT(refusal(format), testing::StartsWith("a brace without its other")) << format;
}

} // namespace skyvane
