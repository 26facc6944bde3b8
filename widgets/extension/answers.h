#pragma once

#include "widgets/extension/message.h"
#include "widgets/sky_provider.h"

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>
#include <vector>

/// Records to the protocol's JSON.
namespace skyvane::Extension {

using Result = nlohmann::ordered_json;

Result listResult(const std::vector<Widget>& offered);
Result entryResult(const SkyEntry& entry, const PlacedWidget& placed);
Result timelineResult(const Timeline& timeline, const PlacedWidget& placed);

/// One line, line break included. A result that makes it longer than a host takes becomes an internal error.
std::string resultLine(const RequestID& id, const Result& result);
std::string errorLine(const RequestID& id, ErrorCode code, std::string_view message);

} // namespace skyvane::Extension
