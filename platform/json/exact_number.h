#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Tokens that the parser would refuse or round, each version others: numbers beyond 64 bits or a double,
/// whole ones that a double holds as another and fractions that it holds as whole, "-0", strings with half of
/// a surrogate pair. They are handed through the parser as strings that no text from outside can hold.
namespace skyvane::JSON::Exact {

/// Whether the text may hold such a token that the parser would not refuse. Fast.
bool mayBeRounded(std::string_view text);

/// The text with all such tokens handed through; absent when it holds none.
std::optional<std::string> withTokensKept(std::string_view text);

/// Whether a string from the parser is such a token, and the token.
bool isToken(std::string_view string);
std::string_view token(std::string_view string);

/// The nearest double; absent for one beyond all doubles, and for any other string.
std::optional<double> number(std::string_view string);

/// The value when it is whole and fits 64 bits; absent for any other string.
std::optional<std::int64_t> wholeNumber(std::string_view string);

} // namespace skyvane::JSON::Exact
