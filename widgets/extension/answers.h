#pragma once

#include "protocol/calls.h"
#include "widgets/extension/message.h"
#include "widgets/extension/offered_widget.h"
#include "widgets/sky_provider.h"

#include <nlohmann/json_fwd.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// What the extension answers.
namespace skyvane::Extension {

using Result = nlohmann::ordered_json;

Protocol::WidgetList widgetList(const std::vector<Widget>& offered);
WidgetEntry widgetEntry(const SkyEntry& entry, const OfferedWidget& widget);
WidgetTimeline widgetTimeline(const SkyTimeline& timeline, const OfferedWidget& widget);

/// How many timelines answer a call; an entry or a list counts as one.
std::size_t timelineCount(const AnyCall& call);

/// One line, line break included. A result that makes it longer than so many timelines may be becomes an
/// internal error.
std::string resultLine(const RequestID& id, const Result& result, std::size_t timelines = 1);
std::string errorLine(const RequestID& id, ErrorCode code, std::string_view message);

} // namespace skyvane::Extension
