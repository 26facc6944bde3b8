#include "host/commands/nearest_words.h"

#include "core/views/nearest_aircraft_view.h"
#include "core/views/sample_entry.h"
#include "core/views/sky_board_view.h"
#include "host/extension/error.h"
#include "ui/tree/build.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using testing::ElementsAre;

WidgetEntry shows(View view)
{
    return {
        .date = Date{}, .isSample = false, .view = std::move(view), .background = {}, .url = std::nullopt};
}

NearestWords wordsOf(const SkyEntry& sky)
{
    return NearestWords::read(
        shows(NearestAircraftView{.entry = sky}.body()), shows(SkyBoardView{.entry = sky}.body()));
}

SkyEntry skyWith(std::vector<Aircraft> aircraft)
{
    SkyEntry sky = sampleEntry();
    sky.aircraft = std::move(aircraft);
    return sky;
}

} // namespace

TEST(NearestWords, areThoseOfTheWidgets)
{
    const NearestWords words = wordsOf(sampleEntry());
    EXPECT_EQ(words.sky, NearestWords::Sky::aircraft);
    EXPECT_EQ(words.callsign, "ASA512");
    EXPECT_EQ(words.identity, "B739 · N512AS");
    EXPECT_EQ(words.type, "B739");
    EXPECT_EQ(words.registration, "N512AS");
    EXPECT_EQ(words.distance, "3.7 mi");
    EXPECT_EQ(words.altitude, "12,500 ft");
    EXPECT_EQ(words.direction, "NW");
    EXPECT_EQ(words.arrow, "↗");
    EXPECT_EQ(words.count, "5");
    EXPECT_EQ(words.time, "12:00 AM");
    EXPECT_EQ(words.lines.size(), 5U);
}

TEST(NearestWords, whereNoDistanceIsKnownThereIsNoAltitudeEither)
{
    const NearestWords words = wordsOf(skyWith({{.hex = "a1", .flight = "ASA512"}, {.hex = "a2"}}));
    EXPECT_EQ(words.callsign, "ASA512");
    EXPECT_EQ(words.identity, "");
    EXPECT_EQ(words.distance, "");
    EXPECT_EQ(words.altitude, "");
    EXPECT_EQ(words.direction, "");
    EXPECT_EQ(words.count, "2");
}

TEST(NearestWords, theDirectionIsThatOfTheNearestAlsoWhereTheScopeHasTheOthersOnly)
{
    const Aircraft nearest{.hex = "a1", .distanceNM = 1};
    const Aircraft other{.hex = "a2", .distanceNM = 2, .directionDeg = 90};
    EXPECT_EQ(wordsOf(skyWith({nearest, other})).direction, "");
    EXPECT_EQ(wordsOf(skyWith({other, nearest})).direction, "E");
}

TEST(NearestWords, rightAboveHomeIsNoDirection)
{
    EXPECT_EQ(wordsOf(skyWith({{.hex = "a1", .distanceNM = 0.1, .directionDeg = 90}})).direction, "");
}

TEST(NearestWords, aTypeIsToldFromARegistrationByItsForm)
{
    const NearestWords type = wordsOf(skyWith({{.hex = "a1", .typeCode = "C17"}}));
    EXPECT_EQ(type.type, "C17");
    EXPECT_EQ(type.registration, "");
    for (const char* registration : {"G-CIVW", "N512AS", "ZK-A"}) {
        const NearestWords words = wordsOf(skyWith({{.hex = "a1", .registration = registration}}));
        EXPECT_EQ(words.type, "");
        EXPECT_EQ(words.registration, registration);
    }
}

TEST(NearestWords, aQuietSkySaysSoAndWhen)
{
    const NearestWords words = wordsOf(skyWith({}));
    EXPECT_EQ(words.sky, NearestWords::Sky::quiet);
    EXPECT_THAT(words.lines, ElementsAre("Quiet skies", testing::StartsWith("as of ")));
    EXPECT_EQ(words.count, "0");
    EXPECT_EQ(words.callsign, "");
}

TEST(NearestWords, withoutAHomeTheyInviteToChooseOne)
{
    SkyEntry sky = skyWith({});
    sky.home.reset();
    sky.isSample = false;
    const NearestWords words = wordsOf(sky);
    EXPECT_EQ(words.sky, NearestWords::Sky::noHome);
    EXPECT_THAT(words.lines, ElementsAre("Open Skyvane to set your home location"));
    EXPECT_EQ(words.count, "");
}

TEST(NearestWords, whatAStrangerWritesGivesABarNoOrders)
{
    const Aircraft hostile{
        .hex = "a1", .flight = "%{A1:reboot:}<b>&#[x]${y}^fg()`z`\n\x1b[2J", .registration = "\"\\|~"};
    const NearestWords words = wordsOf(skyWith({hostile}));
    EXPECT_EQ(words.callsign, "A1:reboot:bxyfg()z  2J");
    EXPECT_EQ(words.registration, "");
}

TEST(NearestWords, otherViewsAreAnError)
{
    const Symbol airplane{.name = "airplane", .font = {.size = 10}, .color = {}};
    const View few = HStack{}({View{.node = airplane}, text("NEAREST"), text("ASA512")});
    EXPECT_THROW(NearestWords::read(shows(few), shows(few)), ExtensionError);
    const View wordless{.node = UnknownView{.type = "hologram"}};
    EXPECT_THROW(NearestWords::read(shows(wordless), shows(wordless)), ExtensionError);
}

} // namespace skyvane
