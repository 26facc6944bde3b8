#pragma once

#include "widgets/skyvane_widget_bundle.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace skyvane::Extension {

/// What a host tells its requests apart by: the JSON text of a number, a string or null, given back character
/// for character.
using RequestID = std::string;

inline constexpr const char* noID = "null";

enum class ErrorCode : int {
    parseError = -32700,
    invalidRequest = -32600,
    unknownMethod = -32601,
    invalidParams = -32602,
    internalError = -32603,
    cancelled = -32800,
    tooManyRequests = -32000,
};

/// One of the widgets on offer, in a family that it supports.
struct PlacedWidget {
    const Widget* widget;
    WidgetFamily family;
};

struct ListRequest { };

struct PlaceholderRequest {
    PlacedWidget placed;
};

struct SnapshotRequest {
    PlacedWidget placed;
    bool isPreview;
};

struct TimelineRequest {
    PlacedWidget placed;
};

struct Request {
    RequestID id;
    std::variant<ListRequest, PlaceholderRequest, SnapshotRequest, TimelineRequest> call;
};

struct Cancellation {
    RequestID id;
};

/// A notification that means nothing here.
struct IgnoredNotification { };

struct Refusal {
    RequestID id; ///< `noID` when there is no telling.
    ErrorCode code;
    std::string message;
};

using Message = std::variant<Request, Cancellation, IgnoredNotification, Refusal>;

/// What one line from the host asks for. A request points into `offered`.
Message readMessage(std::string_view line, const std::vector<Widget>& offered);

} // namespace skyvane::Extension
