#pragma once

#include "protocol/calls.h"
#include "protocol/error_code.h"
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

using Protocol::AnyCall;
using Protocol::ErrorCode;

/// A call whose widget is on offer in the family that is asked for.
struct Request {
    RequestID id;
    AnyCall call;
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

/// What one line from the host asks for.
Message readMessage(std::string_view line, const std::vector<Widget>& offered);

} // namespace skyvane::Extension
