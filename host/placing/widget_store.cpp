#include "host/placing/widget_store.h"

#include <algorithm>
#include <utility>

namespace skyvane {

WidgetStore::WidgetStore(const std::filesystem::path& file) : m_file(file)
{
    auto remembered = m_file.read();
    m_isFirstStart = !remembered;
    if (remembered)
        m_arrangement = *std::move(remembered);
}

const PlacedWidget* WidgetStore::find(int widget) const
{
    const auto found = std::ranges::find(m_arrangement.widgets, widget, &PlacedWidget::id);
    return found == m_arrangement.widgets.end() ? nullptr : &*found;
}

PlacedWidget* WidgetStore::findMutable(int widget)
{
    const auto found = std::ranges::find(m_arrangement.widgets, widget, &PlacedWidget::id);
    return found == m_arrangement.widgets.end() ? nullptr : &*found;
}

int WidgetStore::freeId() const
{
    int last = 0;
    for (const PlacedWidget& widget : all())
        last = std::max(last, widget.id);
    return last + 1;
}

PlacedWidget WidgetStore::add(const WidgetTarget& target, const Placement& placement)
{
    return putBack({.id = freeId(), .target = target, .placement = placement});
}

std::optional<PlacedWidget> WidgetStore::remove(int widget)
{
    const PlacedWidget* found = find(widget);
    if (found == nullptr)
        return std::nullopt;
    const PlacedWidget removed = *found;
    std::erase(m_arrangement.widgets, removed);
    save();
    return removed;
}

PlacedWidget WidgetStore::putBack(PlacedWidget widget)
{
    if (find(widget.id) != nullptr)
        widget.id = freeId();
    m_arrangement.widgets.push_back(std::move(widget));
    save();
    return all().back();
}

void WidgetStore::setLocked(bool isLocked)
{
    m_arrangement.isLocked = isLocked;
    save();
}

void WidgetStore::resize(int widget, WidgetFamily family)
{
    if (PlacedWidget* placed = findMutable(widget)) {
        placed->target.family = family;
        save();
    }
}

void WidgetStore::move(int widget, const Placement& placement)
{
    if (PlacedWidget* placed = findMutable(widget)) {
        placed->placement = placement;
        save();
    }
}

} // namespace skyvane
