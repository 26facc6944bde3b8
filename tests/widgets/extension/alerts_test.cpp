#include "widgets/extension/alerts.h"

#include "alerts/sky_alerts.h"
#include "protocol/limits.h"
#include "protocol/record_codec.h"
#include "tests/core/sample_sky.h"
#include "widgets/extension/answers.h"

#include <gtest/gtest.h>

namespace skyvane::Extension {

namespace {

/// 700 aircraft that all report an emergency under names of this text, repeated to 10,000 bytes.
SkyEntry hostileSky(const std::string& part)
{
    std::string name;
    while (name.size() < 10'000)
        name += part;
    SkyEntry sky = test::skyOf(700);
    for (Aircraft& aircraft : sky.aircraft) {
        aircraft.hex += name;
        aircraft.flight = name;
        aircraft.typeDescription = name;
        aircraft.squawk = "7700";
        aircraft.distanceNM = 1e300;
    }
    return sky;
}

} // namespace

TEST(Alerts, aHostileSkyMakesNoAnswerTooLong)
{
    for (const char* const part :
        {"<b>A</b>", "\x01", "e\u0301", "\U0001F468\u200D\U0001F469\u200D\U0001F467", "\xff", "%zz"}) {
        const auto fitting = alertsThatFit(skyAlerts(hostileSky(part), {.emergency = true}));
        EXPECT_GE(fitting.size(), 5U);
        constexpr std::size_t frame = 100; // Bytes around the alerts.
        const Result result = Protocol::write(Protocol::WidgetTimelines{.timelines = {}, .alerts = fitting});
        const std::string line = resultLine("1", result, Protocol::Limits::longestAlerts + frame);
        EXPECT_EQ(line.find("\"error\""), std::string::npos) << part;
    }
}

TEST(Alerts, ofAnHonestSkyAllFit)
{
    SkyEntry sky = test::skyOf(700);
    for (Aircraft& aircraft : sky.aircraft)
        aircraft.squawk = "7700";
    EXPECT_EQ(alertsThatFit(skyAlerts(sky, {.emergency = true})).size(), 700U);
}

TEST(Alerts, rulesAreHandedOnAsTheyAre)
{
    EXPECT_EQ(skyAlertRules({}), SkyAlertRules{});
    const AlertRules rules{
        .emergency = true,
        .military = true,
        .overhead = OverheadRule{.elevation = 30, .within = 1.5},
        .watch = std::vector<std::string>{"a", "b*"},
    };
    const SkyAlertRules expected{
        .emergency = true,
        .military = true,
        .overhead = {{.elevationDeg = 30, .within = std::chrono::milliseconds{1500}}},
        .watch = {"a", "b*"},
    };
    EXPECT_EQ(skyAlertRules(rules), expected);
}

} // namespace skyvane::Extension
