#include "ui/layout/widget_container.h"

#include "tests/ui/layout/even_measurer.h"
#include "tests/ui/layout/infinity.h"
#include "ui/tree/build.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

View filled()
{
    return link(URL::parse("skyvane://open").value(), Frame{infinity, infinity}(symbol("house")));
}

} // namespace

TEST(WidgetContainer, everyFamilyIsItsNumberOfPoints)
{
    EXPECT_EQ(WidgetContainer::size(WidgetFamily::small), (Size{170, 170}));
    EXPECT_EQ(WidgetContainer::size(WidgetFamily::medium), (Size{364, 170}));
    EXPECT_EQ(WidgetContainer::size(WidgetFamily::large), (Size{364, 382}));
}

TEST(WidgetContainer, aFamilyIsFoundByItsName)
{
    for (const WidgetFamily family : WidgetContainer::families)
        EXPECT_EQ(WidgetContainer::named(WidgetContainer::name(family)), family);
    EXPECT_EQ(WidgetContainer::named("Small"), std::nullopt);
    EXPECT_EQ(WidgetContainer::named(""), std::nullopt);
}

TEST(WidgetContainer, theContentStandsInsideTheMargins)
{
    const DisplayList list = WidgetContainer::layout(filled(), WidgetFamily::medium, test::EvenMeasurer{});
    EXPECT_EQ(list.size, (Size{364, 170}));
    EXPECT_EQ(list.links.at(0).frame, (Rect{16, 16, 332, 138}));
    EXPECT_EQ(std::get<Pictogram>(list.items.at(0)).center, (Point{182, 85}));
}

TEST(WidgetContainer, everyKindOfItemIsMovedIntoTheMargins)
{
    const Color black{0, 0, 0};
    const View drawing = canvas(1,
        {
            CanvasLine{.from = {0, 0}, .to = {1, 1}, .stroke = {.color = black, .width = 1}},
            CanvasCircle{.center = {0, 1}, .diameter = Points{2}, .paint = black},
        });
    const View view = overlay(drawing, {layer(Alignment::topLeading, text("A"))});
    const DisplayList list = WidgetContainer::layout(view, WidgetFamily::small, test::EvenMeasurer{});
    EXPECT_EQ(std::get<Segment>(list.items.at(0)).from, (Point{16, 16}));
    EXPECT_EQ(std::get<Segment>(list.items.at(0)).to, (Point{154, 154}));
    EXPECT_EQ(std::get<Ellipse>(list.items.at(1)).center, (Point{16, 154}));
    EXPECT_EQ(std::get<TextLine>(list.items.at(2)).origin, (Point{16, 23.5}));
}

} // namespace skyvane
