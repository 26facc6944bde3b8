#include "host/desktop/widget_windows.h"

#include "host/session/desktop_way.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

/// A desktop with one screen of 800 by 600 points, whose windows the toolkit takes for being elsewhere.
class LayeredWay : public DesktopWay {
public:
    bool arePlacesKnown() const override { return false; }
    QRect area(const QScreen&) const override { return {0, 0, 800, 600}; }
};

constexpr QSize menu{200, 300};

class WidgetWindowsTest : public testing::Test {
protected:
    QPoint menuPlace(std::unique_ptr<DesktopWay> way, const QPoint& inset, const QPoint& place) const
    {
        WidgetWindows windows{fonts, std::move(way)};
        windows.open({.id = 1,
                         .target = {.kind = "org.example.clock", .family = WidgetFamily::small},
                         .placement = {.screen = {}, .corner = ScreenCorner::topLeft, .inset = inset}},
            {});
        return windows.menuPlace(*windows.find(1), place, menu);
    }

    FontMeasurer fonts;
};

} // namespace

TEST_F(WidgetWindowsTest, aMenuOnALayerLiesInsideTheScreen)
{
    const auto onLayer = [&](const QPoint& inset, const QPoint& place) {
        return menuPlace(std::make_unique<LayeredWay>(), inset, place);
    };
    EXPECT_EQ(onLayer({100, 100}, {30, 40}), QPoint(30, 40));
    EXPECT_EQ(onLayer({606, 24}, {160, 40}), QPoint(-6, 40));
    EXPECT_EQ(onLayer({606, 406}, {160, 160}), QPoint(-6, -106));
}

TEST_F(WidgetWindowsTest, elsewhereTheToolkitKeepsItInside)
{
    EXPECT_EQ(menuPlace(std::make_unique<DesktopWay>(), {606, 406}, {160, 160}), QPoint(160, 160));
}

} // namespace skyvane
