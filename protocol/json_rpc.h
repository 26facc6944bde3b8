#pragma once

#include <string_view>

/// The words of JSON-RPC 2.0, which wraps requests and answers.
namespace skyvane::Protocol::JsonRPC {

inline constexpr std::string_view jsonrpc = "jsonrpc"; ///< The member that holds the version.
inline constexpr std::string_view version = "2.0";
inline constexpr std::string_view id = "id";
inline constexpr std::string_view method = "method";
inline constexpr std::string_view params = "params";
inline constexpr std::string_view result = "result";
inline constexpr std::string_view error = "error";
inline constexpr std::string_view code = "code";
inline constexpr std::string_view message = "message";

} // namespace skyvane::Protocol::JsonRPC
