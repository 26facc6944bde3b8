#pragma once

#include <cstddef>
#include <string_view>

/// Numbers in a JSON text, found and judged without parsing it.
namespace skyvane::JSON::NumberText {

/// A digit or the decimal point.
inline bool isMantissa(char character)
{
    return (character >= '0' && character <= '9') || character == '.';
}

inline bool isExponentMark(char character)
{
    return character == 'e' || character == 'E';
}

/// The character there; a blank past the text's end.
inline char at(std::string_view text, std::size_t place)
{
    return place < text.size() ? text[place] : ' ';
}

/// Past the number that begins there; `start` itself when none does to the letter of JSON.
std::size_t end(std::string_view text, std::size_t start);

/// Where the digits begin that a place in a number belongs to, sign included.
std::size_t start(std::string_view text, std::size_t place);

/// Whether the parser refuses the number, or gives a double that tells otherwise than the text whether, and
/// which, whole number it is.
bool isOdd(std::string_view number);

} // namespace skyvane::JSON::NumberText
