#pragma once

#include <algorithm>
#include <string_view>

/// What the most usual texts are, told without the Unicode library.
namespace skyvane::ASCII {

constexpr bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

constexpr bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

constexpr bool isLowercase(char character)
{
    return character >= 'a' && character <= 'z';
}

constexpr bool isUppercase(char character)
{
    return character >= 'A' && character <= 'Z';
}

constexpr char uppercased(char character)
{
    return isLowercase(character) ? static_cast<char>(character - 'a' + 'A') : character;
}

constexpr char lowercased(char character)
{
    return isUppercase(character) ? static_cast<char>(character - 'A' + 'a') : character;
}

constexpr bool isASCII(std::string_view text)
{
    return std::ranges::all_of(text, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

/// Whether upper-casing would leave the text, which is ASCII, as it is.
constexpr bool isAlreadyUppercased(std::string_view text)
{
    return isASCII(text) && std::ranges::none_of(text, isLowercase);
}

} // namespace skyvane::ASCII
