#include "host/desktop/offered_widgets.h"

#include "platform/text/printable.h"

#include <algorithm>
#include <utility>

namespace skyvane {

namespace {

/// As windows, menus and screen readers may have them.
std::vector<WidgetInfo> withShownTexts(std::vector<WidgetInfo> widgets)
{
    for (WidgetInfo& widget : widgets) {
        widget.displayName = Unicode::oneLine(std::move(widget.displayName));
        widget.description = Unicode::oneLine(std::move(widget.description));
    }
    return widgets;
}

} // namespace

void OfferedWidgets::learn(std::function<void()> learned)
{
    m_extension.ask(Protocol::ListCall{},
        [this, learned = std::move(learned)](const std::optional<Protocol::WidgetList>& list) {
            if (list)
                m_widgets = withShownTexts(list->widgets);
            learned();
        });
}

const WidgetInfo* OfferedWidgets::find(const std::string& kind) const
{
    const auto found = std::ranges::find_if(m_widgets,
        [&](const WidgetInfo& widget) { return widget.kind == kind || widget.shortName() == kind; });
    return found == m_widgets.end() ? nullptr : &*found;
}

std::optional<WidgetTarget> OfferedWidgets::target(const WidgetTarget& asked) const
{
    const WidgetInfo* widget = find(asked.kind);
    if (widget == nullptr || std::ranges::find(widget->families, asked.family) == widget->families.end())
        return std::nullopt;
    return WidgetTarget{.kind = widget->kind, .family = asked.family};
}

} // namespace skyvane
