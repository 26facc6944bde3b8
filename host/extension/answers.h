#pragma once

#include "host/extension/widget_entry.h"
#include "host/extension/widget_info.h"
#include "platform/json/value.h"

#include <cstdint>
#include <vector>

/// The extension's answers (docs/protocol.md) as values. Every function throws `JSON::DecodingError` on
/// another shape.
namespace skyvane::ExtensionAnswers {

/// Which request this answers.
std::int64_t id(JSON::Value answer);

/// The result of the answer to the request of this id. Throws `ExtensionError` when the answer is an error.
JSON::Value result(JSON::Value answer, std::int64_t id);

std::vector<WidgetInfo> widgets(JSON::Value result);
WidgetEntry entry(JSON::Value result);
WidgetTimeline timeline(JSON::Value result);

} // namespace skyvane::ExtensionAnswers
