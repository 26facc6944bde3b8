#include "host/commands/list_command.h"

#include "desk/one_line.h"
#include "ui/layout/widget_container.h"

namespace skyvane {

std::string listText(const std::vector<WidgetInfo>& widgets)
{
    std::string text;
    for (const WidgetInfo& widget : widgets) {
        std::string families;
        for (const WidgetFamily family : widget.families)
            families.append(families.empty() ? "" : ", ").append(WidgetContainer::name(family));
        text += oneLine(widget.kind) + "\t" + oneLine(widget.displayName) + "\t" + families + "\n";
    }
    return text;
}

} // namespace skyvane
