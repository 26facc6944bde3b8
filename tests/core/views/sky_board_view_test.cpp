#include "core/views/sky_board_view.h"

#include "core/radar/radar_view.h"
#include "core/views/sample_entry.h"
#include "core/views/setup_prompt.h"
#include "core/views/widget_aircraft_row.h"
#include "platform/pinned.h"
#include "tests/core/sample_sky.h"
#include "ui/tree/build.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace skyvane {
namespace {

class SkyBoardViewTest : public testing::Test {
    Pinned<Locale> m_locale{test::english()};

protected:
    static constexpr Color dim{0.45, 1.0, 0.6, 0.55};

    static ViewList partsOf(const SkyBoardView& view) { return std::get<VStack>(view.body().node).children; }
    static ViewList rowsOf(const SkyBoardView& view)
    {
        return std::get<VStack>(partsOf(view)[2].node).children;
    }

    static std::string titleOf(const SkyEntry& entry)
    {
        const auto bar = std::get<HStack>(partsOf({.entry = entry})[0].node);
        return std::get<Text>(bar.children[2].node).string;
    }
};

TEST_F(SkyBoardViewTest, withoutAHomeItShowsOnlyTheSetupPrompt)
{
    SkyEntry entry = test::skyOf(3);
    entry.home.reset();
    EXPECT_EQ(SkyBoardView{.entry = entry}.body(), SetupPrompt{}.body());
}

TEST_F(SkyBoardViewTest, aSampleWithoutAHomeShowsTheBoard)
{
    SkyEntry entry = sampleEntry();
    entry.home.reset();
    EXPECT_EQ(rowsOf({.entry = entry}).size(), 5U);
}

TEST_F(SkyBoardViewTest, readsTitleScopeList)
{
    const SkyEntry entry = test::skyOf(1);
    const View titleBar = HStack{}({
        text("SKYVANE")
            .font({.size = 11, .weight = FontWeight::bold, .design = FontDesign::monospaced})
            .tracking(2)
            .foreground({0.45, 1.0, 0.6}),
        spacer(),
        text("25 NM · 10:42 AM").font({.size = 9, .design = FontDesign::monospaced}).foreground(dim),
    });
    const View row
        = WidgetAircraftRow{.aircraft = entry.aircraft[0], .unit = "nm", .palette = entry.palette()}.body();
    const View expected = VStack{.spacing = 10}({
        titleBar,
        Frame{.maxHeight = std::numeric_limits<double>::infinity()}(RadarView{.entry = entry}.body()),
        VStack{.spacing = 6}({identified("a1", link(URL::parse("skyvane://aircraft/a1").value(), row))}),
    });
    EXPECT_EQ(SkyBoardView{.entry = entry}.body(), expected);
}

TEST_F(SkyBoardViewTest, listsTheFirstFiveAircraftWhileTheScopeGetsThemAll)
{
    const SkyEntry entry = test::skyOf(7);
    const ViewList rows = rowsOf({.entry = entry});
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(rows[0].id, "a1");
    EXPECT_EQ(rows[4].id, "a5");
    const auto scope = std::get<Frame>(partsOf({.entry = entry})[1].node).child[0];
    EXPECT_EQ(std::get<Canvas>(scope.node).items.size(), 6U + 7U);
}

TEST_F(SkyBoardViewTest, anEmptySkyIsQuiet)
{
    const SkyEntry entry = test::skyOf(0);
    const ViewList rows = rowsOf({.entry = entry});
    ASSERT_EQ(rows.size(), 1U);
    const View quiet = text("Quiet skies").font({.size = TextStyle::caption}).foreground(dim);
    EXPECT_EQ(rows[0], quiet);
}

TEST_F(SkyBoardViewTest, theTitleStatesTheTruncatedRadiusInNauticalMilesInEveryUnit)
{
    SkyEntry entry = test::skyOf(1);
    entry.radiusNM = 25.9;
    entry.unit = "km";
    EXPECT_EQ(titleOf(entry), "25 NM · 10:42 AM");
    entry.radiusNM = 1000;
    EXPECT_EQ(titleOf(entry), "1000 NM · 10:42 AM");
}

TEST_F(SkyBoardViewTest, aHexThatFormsNoURLOpensTheSkyList)
{
    SkyEntry entry = test::skyOf(1);
    entry.aircraft[0].hex = "a1 b2";
    EXPECT_EQ(std::get<Link>(rowsOf({.entry = entry})[0].node).url.text(), "skyvane://open");
}

TEST_F(SkyBoardViewTest, withoutLinksTheRowsArePlain)
{
    const SkyEntry entry = test::skyOf(5);
    for (const View& row : rowsOf({.entry = entry, .linksEnabled = false}))
        EXPECT_TRUE(std::holds_alternative<HStack>(row.node));
}

TEST_F(SkyBoardViewTest, aRadiusThatIsNoWholeNumberOf64BitsStopsTheProcess)
{
    SkyEntry entry = test::skyOf(0);
    entry.radiusNM = 1e300;
    EXPECT_DEATH(SkyBoardView{.entry = entry}.body(), "");
}

} // namespace
} // namespace skyvane
