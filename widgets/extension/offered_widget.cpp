#include "widgets/extension/offered_widget.h"

#include "platform/json/value.h"
#include "ui/layout/widget_container.h"

#include <algorithm>
#include <string>

namespace skyvane::Extension {

OfferedWidget OfferedWidget::find(const WidgetTarget& target, const std::vector<Widget>& offered)
{
    const auto widget = std::ranges::find(offered, target.kind, &Widget::kind);
    if (widget == offered.end())
        throw JSON::DecodingError{"unknown kind \"" + target.kind + '"'};
    if (std::ranges::find(widget->supportedFamilies, target.family) == widget->supportedFamilies.end()) {
        const std::string family{WidgetContainer::name(target.family)};
        throw JSON::DecodingError{target.kind + " does not support family \"" + family + '"'};
    }
    return {.widget = &*widget, .family = target.family};
}

} // namespace skyvane::Extension
