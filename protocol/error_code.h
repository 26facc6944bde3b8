#pragma once

#include <array>

namespace skyvane::Protocol {

/// Why the extension answers with no result.
enum class ErrorCode : int {
    parseError = -32700,
    invalidRequest = -32600,
    unknownMethod = -32601,
    invalidParams = -32602,
    internalError = -32603,
    cancelled = -32800,
    tooManyRequests = -32000,
};

inline constexpr std::array allErrorCodes{
    ErrorCode::parseError,
    ErrorCode::invalidRequest,
    ErrorCode::unknownMethod,
    ErrorCode::invalidParams,
    ErrorCode::internalError,
    ErrorCode::cancelled,
    ErrorCode::tooManyRequests,
};

} // namespace skyvane::Protocol
