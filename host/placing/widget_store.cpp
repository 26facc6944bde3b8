#include "host/placing/widget_store.h"

#include <algorithm>
#include <utility>

namespace skyvane {

WidgetStore::WidgetStore(const std::filesystem::path& file) : m_file(file)
{
    auto remembered = m_file.read();
    m_isFirstStart = !remembered;
    if (remembered)
        m_widgets = *std::move(remembered);
}

const PlacedWidget* WidgetStore::find(int widget) const
{
    const auto found = std::ranges::find(m_widgets, widget, &PlacedWidget::id);
    return found == m_widgets.end() ? nullptr : &*found;
}

PlacedWidget* WidgetStore::findMutable(int widget)
{
    const auto found = std::ranges::find(m_widgets, widget, &PlacedWidget::id);
    return found == m_widgets.end() ? nullptr : &*found;
}

PlacedWidget WidgetStore::add(const WidgetTarget& target, const Placement& placement)
{
    int last = 0;
    for (const PlacedWidget& widget : m_widgets)
        last = std::max(last, widget.id);
    m_widgets.push_back({.id = last + 1, .target = target, .placement = placement});
    m_file.write(m_widgets);
    return m_widgets.back();
}

bool WidgetStore::remove(int widget)
{
    if (std::erase_if(m_widgets, [&](const PlacedWidget& placed) { return placed.id == widget; }) == 0)
        return false;
    m_file.write(m_widgets);
    return true;
}

void WidgetStore::resize(int widget, WidgetFamily family)
{
    if (PlacedWidget* placed = findMutable(widget)) {
        placed->target.family = family;
        m_file.write(m_widgets);
    }
}

void WidgetStore::move(int widget, const Placement& placement)
{
    if (PlacedWidget* placed = findMutable(widget)) {
        placed->placement = placement;
        m_file.write(m_widgets);
    }
}

} // namespace skyvane
