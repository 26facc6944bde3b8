#include "host/desktop/shown_state.h"

#include "desk/text.h"

namespace skyvane {

using WidgetCard::Mark;

WidgetCard::Mark markOf(const ShownEntry& content)
{
    return content.isRefreshing ? Mark::refreshing : content.isStale ? Mark::stale : Mark::none;
}

QString stateOf(const ShownEntry& content)
{
    switch (markOf(content)) {
    case Mark::none:
        return {};
    case Mark::stale:
        return content.isExtensionStopping
            ? localizedText("Not up to date: the program behind the widgets stops at each request.")
            : localizedText("Not up to date.");
    case Mark::refreshing:
        break;
    }
    return localizedText("Refreshing.");
}

} // namespace skyvane
