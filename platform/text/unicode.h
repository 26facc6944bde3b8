#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Text as people perceive it, by the Unicode standard and without any locale. All texts are UTF-8; a
/// malformed byte counts as U+FFFD.
namespace skyvane::Unicode {

/// The text without space separators (category Zs) and tabs at both ends. Line breaks stay.
std::string_view trimmed(std::string_view text);

/// Full upper-casing: "ß" becomes "SS".
std::string uppercased(std::string_view text);

/// The first letter of every word upper case, digits before it or not, the rest lower case: "CESSNA 172R"
/// becomes "Cessna 172R". Punctuation ends a word, an apostrophe does not: "U.S. Air Force", "De L'air".
std::string wordsCapitalized(std::string_view text);

/// The user-perceived characters (extended grapheme clusters, UAX #29) in order. Views into `text`.
std::vector<std::string_view> characters(std::string_view text);

/// The pieces after each of which a line may end (UAX #14), trailing blanks included. Views into `text`.
std::vector<std::string_view> lineSegments(std::string_view text);

/// Whether the character's first code point has the Alphabetic property.
bool isLetter(std::string_view character);

/// Whether the character's first code point has a numeric value, such as "7", "٣" or "½".
bool isNumber(std::string_view character);

} // namespace skyvane::Unicode
