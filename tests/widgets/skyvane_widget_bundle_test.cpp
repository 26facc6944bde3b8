#include "widgets/skyvane_widget_bundle.h"

#include "core/views/nearest_aircraft_view.h"
#include "core/views/radar_widget_view.h"
#include "core/views/sky_board_view.h"
#include "platform/files/files.h"
#include "tests/core/sample_sky.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace skyvane {
namespace {

using testing::AnyOf;
using testing::HasSubstr;

Widget widgetNamed(const std::string& name)
{
    const std::vector<Widget> widgets = SkyvaneWidgetBundle{}.body();
    return *std::ranges::find(widgets, "org.skyvane.widgets." + name, &Widget::kind);
}

TEST(SkyvaneWidgetBundle, declaresThreeWidgetsInOrder)
{
    struct Declaration {
        std::string kind, displayName, description;
        std::vector<WidgetFamily> families;

        bool operator==(const Declaration&) const = default;
    };
    std::vector<Declaration> declared;
    for (const Widget& widget : SkyvaneWidgetBundle{}.body())
        declared.push_back({widget.kind, widget.displayName, widget.description, widget.supportedFamilies});
    const std::vector<Declaration> expected{
        {"org.skyvane.widgets.nearest", "Nearest Aircraft", "The closest aircraft to home right now.",
            {WidgetFamily::small}},
        {"org.skyvane.widgets.radar", "Sky Radar", "A radar scope of aircraft around your home.",
            {WidgetFamily::small, WidgetFamily::medium}},
        {"org.skyvane.widgets.skyboard", "Sky Board", "Radar scope plus the nearest aircraft, at a glance.",
            {WidgetFamily::large}},
    };
    EXPECT_EQ(declared, expected);
}

TEST(SkyvaneWidgetBundle, isNamedInFullByTheProtocolsPaperAndTheHostsManual)
{
    for (const char* path : {"docs/protocol.md", "packaging/man/skyvane-host.1.in"}) {
        const std::string paper = Files::read(std::filesystem::path{SKYVANE_SOURCES} / path, 1 << 20).value();
        for (const Widget& widget : SkyvaneWidgetBundle{}.body()) {
            const std::string name = widget.kind.substr(widget.kind.rfind('.') + 1);
            EXPECT_THAT(paper, AnyOf(HasSubstr('"' + name + '"'), HasSubstr(".Li " + name))) << path;
        }
    }
}

TEST(SkyvaneWidgetBundle, theNearestWidgetOpensTheAircraftThatItShows)
{
    const SkyEntry entry = test::skyOf(2);
    const WidgetContent content = widgetNamed("nearest").content(entry, WidgetFamily::small);
    EXPECT_EQ(content.view, NearestAircraftView{.entry = entry}.body());
    EXPECT_EQ(content.widgetURL, URL::parse("skyvane://aircraft/a1"));
    EXPECT_EQ(content.containerBackground, ScopePalette::standard().background);
}

TEST(SkyvaneWidgetBundle, theSkyBoardOpensTheSkyList)
{
    const SkyEntry entry = test::skyOf(2);
    const WidgetContent content = widgetNamed("skyboard").content(entry, WidgetFamily::large);
    EXPECT_EQ(content.view, SkyBoardView{.entry = entry}.body());
    EXPECT_EQ(content.widgetURL, URL::parse("skyvane://open"));
}

TEST(SkyvaneWidgetBundle, anIdentityThatFormsNoURLLeavesTheNearestWidgetWithoutATarget)
{
    SkyEntry entry = test::skyOf(1);
    entry.aircraft[0].hex = "%zz";
    EXPECT_FALSE(widgetNamed("nearest").content(entry, WidgetFamily::small).widgetURL);
}

TEST(SkyvaneWidgetBundle, theRadarShowsItsViewAndOpensTheSkyList)
{
    SkyEntry entry = test::skyOf(2);
    entry.accentHex = "#ff0000";
    for (const WidgetFamily family : {WidgetFamily::small, WidgetFamily::medium}) {
        const WidgetContent content = widgetNamed("radar").content(entry, family);
        EXPECT_EQ(content.view, RadarWidgetView{.entry = entry}.body(family));
        EXPECT_EQ(content.widgetURL.value().text(), "skyvane://open");
        EXPECT_EQ(content.containerBackground, (Color{0.09, 0, 0}));
    }
}

} // namespace
} // namespace skyvane
