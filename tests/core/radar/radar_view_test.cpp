#include "core/radar/radar_view.h"

#include "tests/core/sample_sky.h"
#include "ui/tree/build.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace skyvane {
namespace {

constexpr std::size_t fixedItems = 6; ///< Three rings, two lines, one dot.

Canvas canvasOf(const RadarView& view)
{
    return std::get<Canvas>(view.body().node);
}

std::vector<CanvasSymbol> blipsOf(const RadarView& view)
{
    const Canvas canvas = canvasOf(view);
    std::vector<CanvasSymbol> blips;
    for (std::size_t index = fixedItems; index < canvas.items.size(); ++index)
        blips.push_back(std::get<CanvasSymbol>(canvas.items[index]));
    return blips;
}

CanvasSymbol onlyBlip(const Aircraft& aircraft)
{
    SkyEntry entry = test::skyOf(0);
    entry.aircraft = {aircraft};
    return blipsOf({.entry = entry}).at(0);
}

TEST(RadarView, anEmptySkyShowsRingsCrossAndHomeDotOnly)
{
    const SkyEntry entry = test::skyOf(0);
    const Color faint = ScopePalette::standard().faint();
    const auto ring = [&](double fraction) {
        return CanvasCircle{.center = {0.5, 0.5},
            .diameter = FractionOfWidth{fraction},
            .paint = Stroke{.color = faint, .width = 1}};
    };
    const std::vector<CanvasItem> expected{
        ring(1.0 / 3),
        ring(2.0 / 3),
        ring(1),
        CanvasLine{.from = {0, 0.5}, .to = {1, 0.5}, .stroke = {.color = faint, .width = 0.5}},
        CanvasLine{.from = {0.5, 0}, .to = {0.5, 1}, .stroke = {.color = faint, .width = 0.5}},
        CanvasCircle{.center = {0.5, 0.5}, .diameter = Points{5}, .paint = ScopePalette::standard().phosphor},
    };
    EXPECT_EQ(canvasOf({.entry = entry}), (Canvas{.aspectRatio = 1, .items = expected}));
}

TEST(RadarView, aBlipIsASmallBoldAeroplaneThatCarriesItsAircraft)
{
    const CanvasSymbol blip
        = onlyBlip({.hex = "~a1", .track = 45.0, .dbFlags = 1, .distanceNM = 12.5, .directionDeg = 90.0});
    EXPECT_EQ(blip.name, "airplane");
    EXPECT_EQ(blip.font, (Font{.size = 7, .weight = FontWeight::bold}));
    EXPECT_EQ(blip.color, (Color{1.0, 0.85, 0.3}));
    EXPECT_EQ(blip.rotation, -45);
    EXPECT_EQ(blip.id, "~a1");
    EXPECT_NEAR(blip.center.x, 0.5 + 0.5 * 0.5 * 0.94, 1e-12);
    EXPECT_NEAR(blip.center.y, 0.5, 1e-12);
}

TEST(RadarView, anAircraftWithoutTrackPointsAwayFromHome)
{
    EXPECT_EQ(onlyBlip({.hex = "a", .distanceNM = 5.0, .directionDeg = 200.0}).rotation, 110);
}

TEST(RadarView, onTheRadiusAndBeyondItBlipsStandJustInsideTheRing)
{
    const CanvasSymbol onRing = onlyBlip({.hex = "a", .distanceNM = 25.0, .directionDeg = 0.0});
    EXPECT_NEAR(onRing.center.x, 0.5, 1e-12);
    EXPECT_NEAR(onRing.center.y, 0.5 - 0.5 * 0.94, 1e-12);
    EXPECT_EQ(onlyBlip({.hex = "a", .distanceNM = 50.0, .directionDeg = 0.0}).center, onRing.center);
}

TEST(RadarView, aBearingBeyondAllArithmeticLeavesTheAircraftOut)
{
    SkyEntry entry = test::skyOf(3);
    entry.aircraft[1].directionDeg = 1e308;
    EXPECT_EQ(blipsOf({.entry = entry}).size(), 2U);
}

TEST(RadarView, onlyTheFirstFortyAircraftAreConsidered)
{
    SkyEntry entry = test::skyOf(50);
    EXPECT_EQ(blipsOf({.entry = entry}).size(), 40U);
    for (const std::size_t index : {0U, 7U, 39U})
        entry.aircraft[index].distanceNM.reset();
    EXPECT_EQ(blipsOf({.entry = entry}).size(), 37U);
}

TEST(RadarView, aLimitOfZeroOrLessDrawsNoBlips)
{
    const SkyEntry entry = test::skyOf(3);
    EXPECT_TRUE(blipsOf({.entry = entry, .maxBlips = 0}).empty());
    EXPECT_TRUE(blipsOf({.entry = entry, .maxBlips = -1}).empty());
}

TEST(RadarView, takesTheAccentOfTheEntry)
{
    SkyEntry entry = test::skyOf(1);
    entry.accentHex = "#ff0000";
    EXPECT_EQ(blipsOf({.entry = entry}).at(0).color, (Color{1, 0, 0}));
}

} // namespace
} // namespace skyvane
