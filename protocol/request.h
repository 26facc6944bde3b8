#pragma once

#include "platform/json/value.h"
#include "protocol/calls.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Requests, written by the host and read by the extension.
namespace skyvane::Protocol {

/// One line, line break included.
std::string requestLine(std::int64_t id, const AnyCall& call);

/// The call of this name with its parameters; absent when there is none. Throws `JSON::DecodingError` when
/// the parameters are of another shape.
std::optional<AnyCall> readCall(std::string_view method, JSON::Value params);

} // namespace skyvane::Protocol
