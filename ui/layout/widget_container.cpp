#include "ui/layout/widget_container.h"

#include "ui/layout/layout.h"

#include <algorithm>

namespace skyvane::WidgetContainer {

namespace {

Point moved(Point point)
{
    return {.x = point.x + contentMargin, .y = point.y + contentMargin};
}

void move(TextLine& line)
{
    line.origin = moved(line.origin);
}
void move(Pictogram& pictogram)
{
    pictogram.center = moved(pictogram.center);
}
void move(Ellipse& ellipse)
{
    ellipse.center = moved(ellipse.center);
}
void move(Segment& segment)
{
    segment.from = moved(segment.from);
    segment.to = moved(segment.to);
}

} // namespace

Size size(WidgetFamily family)
{
    switch (family) {
    case WidgetFamily::small:
        return {.width = 170, .height = 170};
    case WidgetFamily::medium:
        return {.width = 364, .height = 170};
    case WidgetFamily::large:
        return {.width = 364, .height = 382};
    }
    return {};
}

std::string_view name(WidgetFamily family)
{
    constexpr std::array<std::string_view, families.size()> names{"small", "medium", "large"};
    return names[static_cast<std::size_t>(family)];
}

std::optional<WidgetFamily> named(std::string_view name)
{
    const auto found = std::find_if(families.begin(), families.end(),
        [&](WidgetFamily family) { return WidgetContainer::name(family) == name; });
    return found == families.end() ? std::nullopt : std::optional{*found};
}

DisplayList layout(
    const View& content, WidgetFamily family, const TextMeasurer& measurer, TextDirection direction)
{
    return WidgetContainer::layout(content, size(family), measurer, direction);
}

DisplayList layout(
    const View& content, const Size& whole, const TextMeasurer& measurer, TextDirection direction)
{
    const Size inner{
        .width = std::max(whole.width - 2 * contentMargin, 0.0),
        .height = std::max(whole.height - 2 * contentMargin, 0.0),
    };
    DisplayList list = skyvane::layout(content, inner, measurer, direction);
    list.size = whole;
    for (DisplayItem& item : list.items)
        std::visit([](auto& drawn) { move(drawn); }, item);
    for (LinkArea& link : list.links) {
        link.frame.x += contentMargin;
        link.frame.y += contentMargin;
    }
    return list;
}

} // namespace skyvane::WidgetContainer
