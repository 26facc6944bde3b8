#pragma once

#include "platform/json/value.h"

#include <cstdint>
#include <stdexcept>

/// Answers, as the host reads them. Every function throws `JSON::DecodingError` on another shape.
namespace skyvane::Protocol {

/// The extension answered with an error; what() is its message.
struct Refused : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Which request this answers.
std::int64_t answeredID(JSON::Value answer);

/// The result of the answer to the request of this id. Throws `Refused` when the answer is an error.
JSON::Value resultOf(JSON::Value answer, std::int64_t id);

/// A result as the table of calls names its type.
template <class Result>
Result read(JSON::Value result);

} // namespace skyvane::Protocol
