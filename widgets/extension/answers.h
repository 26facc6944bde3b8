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

/// Bytes that the answer to a call has at most; an entry or a list counts as a timeline.
std::size_t longestResult(const AnyCall& call);

/// One line, line break included. A result that makes it longer becomes an internal error.
std::string resultLine(
    const RequestID& id, const Result& result, std::size_t longest = Protocol::Limits::longestTimeline);
std::string errorLine(const RequestID& id, ErrorCode code, std::string_view message);

} // namespace skyvane::Extension
