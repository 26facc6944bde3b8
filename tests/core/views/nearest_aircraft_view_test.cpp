#include "core/views/nearest_aircraft_view.h"

#include "core/views/sample_entry.h"
#include "core/views/setup_prompt.h"
#include "platform/pinned.h"
#include "tests/core/sample_sky.h"
#include "ui/tree/build.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace skyvane {
namespace {

class NearestAircraftViewTest : public testing::Test {
    Pinned<Locale> m_locale{test::english()};

protected:
    static constexpr Color phosphor{0.45, 1.0, 0.6};
    static constexpr Color dim{0.45, 1.0, 0.6, 0.55};

    static Font monospaced(double size, FontWeight weight = FontWeight::regular)
    {
        return {.size = size, .weight = weight, .design = FontDesign::monospaced};
    }

    static ViewList cardOf(const Aircraft& aircraft)
    {
        SkyEntry entry = test::skyOf(0);
        entry.aircraft = {aircraft};
        return std::get<VStack>(NearestAircraftView{.entry = entry}.body().node).children;
    }

    static std::string stringOf(const View& view) { return std::get<Text>(view.node).string; }
};

TEST_F(NearestAircraftViewTest, withoutAHomeItShowsTheSetupPromptAndNeverQuietSkies)
{
    SkyEntry entry = test::skyOf(0);
    entry.home.reset();
    EXPECT_EQ(NearestAircraftView{.entry = entry}.body(), SetupPrompt{}.body());
    entry.accentHex = "#ff0000";
    EXPECT_EQ(NearestAircraftView{.entry = entry}.body(), SetupPrompt{.palette = entry.palette()}.body());
}

TEST_F(NearestAircraftViewTest, aSampleWithoutAHomeShowsItsFirstAircraft)
{
    SkyEntry entry = sampleEntry();
    entry.home.reset();
    const auto card = std::get<VStack>(NearestAircraftView{.entry = entry}.body().node);
    EXPECT_EQ(stringOf(card.children[1]), "ASA512");
}

TEST_F(NearestAircraftViewTest, anEmptySkyIsQuiet)
{
    const SkyEntry entry = test::skyOf(0);
    const View expected = VStack{.spacing = 4}({
        symbol("airplane.departure").font({.size = TextStyle::title3}).foreground(dim),
        text("Quiet skies").font({.size = TextStyle::caption}).foreground(dim),
        text("as of 10:42 AM").font(monospaced(8)).foreground(dim),
    });
    EXPECT_EQ(NearestAircraftView{.entry = entry}.body(), expected);
}

TEST_F(NearestAircraftViewTest, theCardShowsTheFirstAircraftInDetail)
{
    SkyEntry entry = test::skyOf(5);
    entry.unit = "mi";
    entry.aircraft[0] = {
        .hex = "a1b2c3",
        .flight = "ASA512  ",
        .registration = "N512AS",
        .typeCode = "B739",
        .altBaro = Altitude::feet(12500),
        .track = 45.0,
        .distanceNM = 3.2,
    };
    const View header = HStack{}({
        text("NEAREST").font(monospaced(9, FontWeight::semibold)).tracking(1.5).foreground(dim),
        spacer(),
        symbol("airplane").font({.size = 11, .weight = FontWeight::bold}).rotated(-45).foreground(phosphor),
    });
    const View expected = VStack{.spacing = 2, .align = HorizontalAlignment::leading}({
        header,
        text("ASA512")
            .font(monospaced(19, FontWeight::bold))
            .foreground(phosphor)
            .lineLimit(1)
            .minimumScale(0.6),
        text("B739 · N512AS").font(monospaced(10)).foreground(dim).lineLimit(1),
        text("3.7 mi · 12,500 ft")
            .font(monospaced(10, FontWeight::semibold))
            .foreground({0.45, 1.0, 0.6, 0.85})
            .lineLimit(1)
            .minimumScale(0.7),
        text("5 in range · 10:42 AM").font(monospaced(8)).foreground(dim),
    });
    EXPECT_EQ(NearestAircraftView{.entry = entry}.body(), expected);
}

TEST_F(NearestAircraftViewTest, theHeadersGlyphTakesTheBlipsColour)
{
    const auto header = std::get<HStack>(cardOf({.hex = "a", .dbFlags = 1})[0].node);
    const auto glyph = std::get<Symbol>(header.children[2].node);
    EXPECT_EQ(glyph.color, (Color{1.0, 0.85, 0.3}));
    EXPECT_EQ(glyph.rotation, 0);
}

TEST_F(NearestAircraftViewTest, withoutADistanceTheAltitudeIsNotShownEither)
{
    const ViewList card = cardOf({.hex = "a", .altBaro = Altitude::feet(12500)});
    ASSERT_EQ(card.size(), 4U);
    EXPECT_EQ(stringOf(card[3]), "1 in range · 10:42 AM");
}

TEST_F(NearestAircraftViewTest, theIdentityLineLeavesOutWhatIsMissingButKeepsItsPlace)
{
    const auto identityOf = [](const Aircraft& aircraft) { return stringOf(cardOf(aircraft)[2]); };
    EXPECT_EQ(identityOf({.hex = "a", .typeCode = "B739"}), "B739");
    EXPECT_EQ(identityOf({.hex = "a", .registration = "", .typeCode = "B739"}), "B739");
    EXPECT_EQ(identityOf({.hex = "a", .registration = "N512AS", .typeCode = ""}), "N512AS");
    EXPECT_EQ(identityOf({.hex = "a"}), "");
}

TEST_F(NearestAircraftViewTest, oneAircraftIsCountedWithoutASingularForm)
{
    EXPECT_EQ(stringOf(cardOf({.hex = "a", .distanceNM = 1.0})[4]), "1 in range · 10:42 AM");
}

} // namespace
} // namespace skyvane
