#pragma once

#include "ui/layout/widget_container.h"

#include <QByteArray>

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <string_view>

/// What the host asks the extension (docs/protocol.md).
namespace skyvane::ExtensionRequests {

/// The parameters that name one widget.
nlohmann::ordered_json target(std::string_view kind, WidgetFamily family);

/// One line, line break included.
QByteArray line(std::int64_t id, std::string_view method, const nlohmann::ordered_json& params);

} // namespace skyvane::ExtensionRequests
