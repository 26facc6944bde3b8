#include "alerts/sky_alerts.h"

#include "platform/text/unicode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace skyvane {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Date noon{std::chrono::sys_days{std::chrono::year{2026} / 11 / 22} + std::chrono::hours{12}};
constexpr SkyAlertRules::Overhead anywhere{.elevationDeg = 45, .within = std::chrono::minutes{8}};

/// So long before it is right above home.
Aircraft passing(std::chrono::seconds before)
{
    return {
        .hex = "4007f0",
        .flight = "BAW117",
        .altBaro = Altitude::feet(36'000),
        .groundSpeed = 360,
        .track = 0,
        .lat = 51.5 - static_cast<double>(before.count()) / 600,
        .lon = -0.12,
    };
}

SkyEntry sky(std::vector<Aircraft> aircraft)
{
    return {
        .date = noon,
        .aircraft = std::move(aircraft),
        .radiusNM = 50,
        .home = HomeLocation{.latitude = 51.5, .longitude = -0.12, .label = "Home"},
        .isSample = false,
        .unit = "mi",
    };
}

std::vector<std::string> ids(const std::vector<SkyAlert>& alerts)
{
    std::vector<std::string> list;
    list.reserve(alerts.size());
    for (const SkyAlert& alert : alerts)
        list.push_back(alert.id);
    return list;
}

Aircraft everything()
{
    Aircraft aircraft = passing(std::chrono::seconds{240});
    aircraft.squawk = "7700";
    aircraft.dbFlags = 1;
    return aircraft;
}

} // namespace

TEST(SkyAlerts, withoutRulesNothingIsWorthTelling)
{
    EXPECT_THAT(skyAlerts(sky({everything()}), {}), IsEmpty());
}

TEST(SkyAlerts, eachRuleFindsItsOwn)
{
    const SkyEntry one = sky({everything()});
    EXPECT_THAT(ids(skyAlerts(one, {.emergency = true})), ElementsAre("emergency/4007f0"));
    EXPECT_THAT(ids(skyAlerts(one, {.military = true})), ElementsAre("military/4007f0"));
    EXPECT_THAT(ids(skyAlerts(one, {.overhead = anywhere})), ElementsAre("overhead/4007f0"));
    EXPECT_THAT(ids(skyAlerts(one, {.watch = {"baw*"}})), ElementsAre("watch/4007f0"));
}

TEST(SkyAlerts, anAircraftIsToldOfOnceForBeingThereAndOnceForPassing)
{
    const SkyAlertRules all{.emergency = true, .military = true, .overhead = anywhere, .watch = {"*"}};
    EXPECT_THAT(ids(skyAlerts(sky({everything()}), all)), ElementsAre("emergency/4007f0", "overhead/4007f0"));
}

TEST(SkyAlerts, theMostUrgentComesFirstThenTheSoonestThenTheNearest)
{
    Aircraft soldier{.hex = "a1", .dbFlags = 1};
    Aircraft watched{.hex = "a2", .flight = "WATCHED"};
    Aircraft later = passing(std::chrono::seconds{400});
    Aircraft sooner = passing(std::chrono::seconds{300});
    sooner.hex = "a3";
    Aircraft near{.hex = "a4", .squawk = "7600"};
    Aircraft far{.hex = "a5", .squawk = "7700"};
    const SkyAlertRules all{.emergency = true, .military = true, .overhead = anywhere, .watch = {"WATCHED"}};
    EXPECT_THAT(ids(skyAlerts(sky({soldier, watched, later, sooner, near, far}), all)),
        ElementsAre(
            "emergency/a4", "emergency/a5", "watch/a2", "overhead/a3", "overhead/4007f0", "military/a1"));
}

TEST(SkyAlerts, aPassIsAnnouncedThreeMinutesBeforeIt)
{
    const auto alerts = skyAlerts(sky({passing(std::chrono::seconds{420})}), {.overhead = anywhere});
    ASSERT_EQ(alerts.size(), 1U);
    EXPECT_NEAR(std::chrono::duration<double>(alerts[0].at - noon).count(), 240, 2);
    EXPECT_EQ(alerts[0].title, "Look up");
    EXPECT_EQ(alerts[0].body, "BAW117 passes right above you in 3 minutes.");
    EXPECT_EQ(alerts[0].url.value().text(), "skyvane://aircraft/4007f0");
}

TEST(SkyAlerts, aPassThatIsNearIsAnnouncedNow)
{
    const auto alerts = skyAlerts(sky({passing(std::chrono::seconds{120})}), {.overhead = anywhere});
    ASSERT_EQ(alerts.size(), 1U);
    EXPECT_EQ(alerts[0].at, noon);
    EXPECT_EQ(alerts[0].body, "BAW117 passes right above you in 2 minutes.");
}

TEST(SkyAlerts, aPassTooLateOrTooLowOrOverIsNone)
{
    EXPECT_THAT(skyAlerts(sky({passing(std::chrono::seconds{500})}), {.overhead = anywhere}), IsEmpty());
    EXPECT_THAT(skyAlerts(sky({passing(std::chrono::seconds{-10})}), {.overhead = anywhere}), IsEmpty());
    Aircraft aside = passing(std::chrono::seconds{120});
    aside.lon = -0.12 + 8 / 60.0 / 0.6225; // Eight miles aside, six high.
    EXPECT_THAT(skyAlerts(sky({aside}), {.overhead = anywhere}), IsEmpty());
    EXPECT_THAT(
        ids(skyAlerts(sky({aside}), {.overhead = {{.elevationDeg = 30, .within = std::chrono::minutes{8}}}})),
        ElementsAre("overhead/4007f0"));
}

TEST(SkyAlerts, staleTurningAndTaxiingAircraftGiveNoPass)
{
    Aircraft stale = passing(std::chrono::seconds{120});
    stale.seenPos = 45;
    Aircraft taxiing = passing(std::chrono::seconds{120});
    taxiing.altBaro = Altitude::ground();
    taxiing.altGeom = 300;
    for (const Aircraft& one : {stale, taxiing})
        EXPECT_THAT(skyAlerts(sky({one}), {.overhead = anywhere}), IsEmpty());
    const SkyEntry holding = sky({passing(std::chrono::seconds{120})});
    EXPECT_THAT(skyAlerts(holding, {.overhead = anywhere}, {{"4007f0", 3.0}}), IsEmpty());
    EXPECT_EQ(skyAlerts(holding, {.overhead = anywhere}, {{"4007f0", 0.0}}).size(), 1U);
}

TEST(SkyAlerts, withoutAHomeNothingPassesOverIt)
{
    SkyEntry homeless = sky({passing(std::chrono::seconds{120})});
    homeless.home.reset();
    EXPECT_THAT(skyAlerts(homeless, {.overhead = anywhere}), IsEmpty());
}

TEST(SkyAlerts, theSameAircraftTwiceInAnAnswerIsOne)
{
    EXPECT_EQ(skyAlerts(sky({everything(), everything()}), {.emergency = true}).size(), 1U);
}

TEST(SkyAlerts, textsAndIdentitiesAreBoundedWhateverTheFeedSends)
{
    Aircraft absurd = everything();
    absurd.hex = std::string(10'000, 'f') + "\n<b>";
    absurd.flight = "<b>" + std::string(10'000, 'A');
    const SkyAlertRules all{.emergency = true, .overhead = anywhere};
    for (const SkyAlert& alert : skyAlerts(sky({absurd}), all)) {
        for (const std::string& text : {alert.id, alert.title, alert.body}) {
            EXPECT_LE(Unicode::characters(text).size(), 256U);
            EXPECT_EQ(text.find('\n'), std::string::npos);
        }
        EXPECT_FALSE(alert.url);
    }
}

TEST(SkyAlerts, theSampleIsAnnouncedLikeAnyOther)
{
    const SkyAlert sample = sampleSkyAlert();
    EXPECT_EQ(sample.title, "Look up");
    EXPECT_EQ(sample.body, "ASA512, Boeing 737-900, passes 62° high in the south-west in 3 minutes.");
    EXPECT_EQ(sample.url.value().text(), "skyvane://open");
}

} // namespace skyvane
