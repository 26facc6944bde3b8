#include "core/views/radar_widget_view.h"

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

class RadarWidgetViewTest : public testing::Test {
    Pinned<Locale> m_locale{test::english()};

protected:
    static constexpr Color phosphor{0.45, 1.0, 0.6};
    static constexpr Color dim{0.45, 1.0, 0.6, 0.55};
    static constexpr Font captionFont{.size = 8, .design = FontDesign::monospaced};

    /// The medium layout's right side.
    static VStack listOf(const RadarWidgetView& view, WidgetFamily family = WidgetFamily::medium)
    {
        const auto stack = std::get<HStack>(view.body(family).node);
        return std::get<VStack>(std::get<Frame>(stack.children[1].node).child[0].node);
    }

    static std::string headerOf(const SkyEntry& entry)
    {
        return std::get<Text>(listOf({.entry = entry}).children[0].node).string;
    }
};

TEST_F(RadarWidgetViewTest, withoutAHomeEveryFamilyShowsOnlyTheSetupPrompt)
{
    SkyEntry entry = test::skyOf(2);
    entry.home.reset();
    entry.accentHex = "#ff0000";
    const View prompt = SetupPrompt{.palette = entry.palette()}.body();
    for (const WidgetFamily family : {WidgetFamily::small, WidgetFamily::medium, WidgetFamily::large})
        EXPECT_EQ(RadarWidgetView{.entry = entry}.body(family), prompt);
}

TEST_F(RadarWidgetViewTest, aSampleWithoutAHomeStillShowsTheScope)
{
    SkyEntry entry = sampleEntry();
    entry.home.reset();
    const View view = RadarWidgetView{.entry = entry}.body(WidgetFamily::small);
    const auto scope = std::get<Canvas>(std::get<Overlay>(view.node).child[0].node);
    EXPECT_EQ(scope.items.size(), 6U + 5U);
}

TEST_F(RadarWidgetViewTest, anEmptySmallWidgetSaysSo)
{
    const SkyEntry entry = test::skyOf(0);
    const View expected = overlay(RadarView{.entry = entry}.body(),
        {
            layer(Alignment::topLeading, text("25nm").font(captionFont).foreground(dim)),
            layer(Alignment::top,
                text("QUIET SKY")
                    .font({.size = 8, .weight = FontWeight::semibold, .design = FontDesign::monospaced})
                    .tracking(1.5)
                    .foreground(dim)),
            layer(Alignment::bottomLeading,
                text("0")
                    .font({.size = 10, .weight = FontWeight::bold, .design = FontDesign::monospaced})
                    .foreground(phosphor)),
            layer(Alignment::bottomTrailing, text("10:42 AM").font(captionFont).foreground(dim)),
        });
    EXPECT_EQ(RadarWidgetView{.entry = entry}.body(WidgetFamily::small), expected);
}

TEST_F(RadarWidgetViewTest, theSmallWidgetCountsEveryAircraftAndIsNotQuiet)
{
    const SkyEntry entry = test::skyOf(700);
    const auto scope = std::get<Overlay>(RadarWidgetView{.entry = entry}.body(WidgetFamily::small).node);
    ASSERT_EQ(scope.layers.size(), 3U);
    EXPECT_EQ(std::get<Text>(scope.layers[1].child[0].node).string, "700");
}

TEST_F(RadarWidgetViewTest, everyFamilyButMediumIsTheCaptionedScope)
{
    const SkyEntry entry = test::skyOf(2);
    const RadarWidgetView view{.entry = entry};
    EXPECT_EQ(view.body(WidgetFamily::large), view.body(WidgetFamily::small));
    EXPECT_NE(view.body(WidgetFamily::medium), view.body(WidgetFamily::small));
}

TEST_F(RadarWidgetViewTest, theMediumWidgetIsTheScopeBesideItsList)
{
    const SkyEntry entry = test::skyOf(1);
    const View row
        = WidgetAircraftRow{.aircraft = entry.aircraft[0], .unit = "nm", .palette = entry.palette()}.body();
    const View list = VStack{.spacing = 5, .align = HorizontalAlignment::leading}({
        text("1 AIRCRAFT · 25 NM")
            .font({.size = 9, .weight = FontWeight::semibold, .design = FontDesign::monospaced})
            .tracking(1)
            .foreground(dim),
        identified("a1", link(URL::parse("skyvane://aircraft/a1").value(), row)),
        spacer(),
        text("as of 10:42 AM").font(captionFont).foreground(dim),
    });
    const View expected = HStack{.spacing = 12}({
        RadarView{.entry = entry}.body(),
        Frame{.maxWidth = std::numeric_limits<double>::infinity(), .align = Alignment::leading}(list),
    });
    EXPECT_EQ(RadarWidgetView{.entry = entry}.body(WidgetFamily::medium), expected);
}

TEST_F(RadarWidgetViewTest, theMediumWidgetListsThreeAircraftAtMost)
{
    constexpr std::size_t besideRows = 3; // Header, gap and footer.
    const SkyEntry two = test::skyOf(2);
    EXPECT_EQ(listOf({.entry = two}).children.size(), 2 + besideRows);
    const SkyEntry seven = test::skyOf(7);
    const VStack list = listOf({.entry = seven});
    EXPECT_EQ(list.children.size(), 3 + besideRows);
    EXPECT_EQ(list.children[3].id, "a3");
    EXPECT_EQ(headerOf(seven), "7 AIRCRAFT · 25 NM");
}

TEST_F(RadarWidgetViewTest, theRadiusIsTruncated)
{
    SkyEntry entry = test::skyOf(0);
    entry.radiusNM = 12.9;
    EXPECT_EQ(headerOf(entry), "0 AIRCRAFT · 12 NM");
    const auto scope = std::get<Overlay>(RadarWidgetView{.entry = entry}.body(WidgetFamily::small).node);
    EXPECT_EQ(std::get<Text>(scope.layers[0].child[0].node).string, "12nm");
    entry.radiusNM = 1000;
    EXPECT_EQ(headerOf(entry), "0 AIRCRAFT · 1000 NM");
}

TEST_F(RadarWidgetViewTest, aForcedFamilyWinsOverTheOneItIsShownIn)
{
    const SkyEntry entry = test::skyOf(3);
    EXPECT_EQ(
        (RadarWidgetView{.entry = entry, .forcedFamily = WidgetFamily::medium}.body(WidgetFamily::small)),
        RadarWidgetView{.entry = entry}.body(WidgetFamily::medium));
}

TEST_F(RadarWidgetViewTest, withoutLinksNoRowIsTappable)
{
    const SkyEntry entry = test::skyOf(3);
    for (const View& view : listOf({.entry = entry, .linksEnabled = false}).children)
        EXPECT_FALSE(std::holds_alternative<Link>(view.node));
}

TEST_F(RadarWidgetViewTest, anIdentityThatFormsNoURLOpensTheSkyList)
{
    const auto targetOf = [](const std::string& hex) {
        SkyEntry entry = test::skyOf(1);
        entry.aircraft[0].hex = hex;
        return std::get<Link>(listOf({.entry = entry}).children[1].node).url.text();
    };
    EXPECT_EQ(targetOf("~2a4f91"), "skyvane://aircraft/~2a4f91");
    EXPECT_EQ(targetOf("A1B2C3"), "skyvane://aircraft/A1B2C3");
    EXPECT_EQ(targetOf("a1 b2"), "skyvane://open");
    EXPECT_EQ(targetOf("%zz"), "skyvane://open");
}

TEST_F(RadarWidgetViewTest, aRadiusThatIsNoWholeNumberOf64BitsStopsTheProcess)
{
    SkyEntry entry = test::skyOf(0);
    for (const double radius :
        {1e19, -1e19, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        entry.radiusNM = radius;
        EXPECT_DEATH(RadarWidgetView{.entry = entry}.body(WidgetFamily::small), "") << radius;
    }
}

} // namespace
} // namespace skyvane
