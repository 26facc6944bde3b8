#include "platform/text/printable.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>

namespace skyvane::Unicode {

namespace {

constexpr std::string_view replacement = "\uFFFD";

bool isPlain(std::string_view text)
{
    return std::ranges::all_of(text, [](char byte) { return byte >= ' ' && byte <= '~'; });
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion" // The library's macro narrows on purpose.
/// The code point that starts there, and where the next one does; below zero for a malformed byte.
std::pair<UChar32, std::int32_t> codePointAt(std::string_view text, std::int32_t start)
{
    UChar32 character = 0;
    const auto length = static_cast<std::int32_t>(text.size());
    U8_NEXT(text.data(), start, length, character);
    return {character, start};
}
#pragma GCC diagnostic pop

bool breaksLines(UChar32 character)
{
    constexpr UChar32 nextLine = 0x85;
    constexpr UChar32 lineSeparator = 0x2028;
    constexpr UChar32 paragraphSeparator = 0x2029;
    return (character >= '\n' && character <= '\r') || character == nextLine || character == lineSeparator
        || character == paragraphSeparator;
}

bool isJoiner(UChar32 character)
{
    constexpr UChar32 zeroWidthNonJoiner = 0x200C;
    constexpr UChar32 zeroWidthJoiner = 0x200D;
    return character == zeroWidthNonJoiner || character == zeroWidthJoiner;
}

/// A mark of direction, which number formats of some languages have. It holds where it stands; the other
/// format characters for directions hold until they are ended, which may be beyond the text.
bool isDirectionMark(UChar32 character)
{
    constexpr UChar32 leftToRight = 0x200E;
    constexpr UChar32 rightToLeft = 0x200F;
    constexpr UChar32 arabicLetter = 0x061C;
    return character == leftToRight || character == rightToLeft || character == arabicLetter;
}

/// What stands for a code point; `written` is how it is written.
std::string_view standIn(UChar32 character, std::string_view written)
{
    if (character < 0)
        return replacement;
    if (breaksLines(character))
        return "\n";
    if (character == '\t' || isJoiner(character) || isDirectionMark(character))
        return written;
    switch (u_charType(character)) {
    case U_CONTROL_CHAR:
        return " ";
    case U_FORMAT_CHAR:
        return {};
    case U_UNASSIGNED:
    case U_PRIVATE_USE_CHAR:
    case U_SURROGATE:
        return replacement;
    default:
        return written;
    }
}

} // namespace

std::string printable(std::string text)
{
    if (isPlain(text))
        return text;
    const std::string_view all = text;
    std::string kept;
    kept.reserve(all.size());
    for (std::int32_t at = 0; std::cmp_less(at, all.size());) {
        const auto [character, next] = codePointAt(all, at);
        const auto start = static_cast<std::size_t>(std::exchange(at, next));
        const std::string_view written = all.substr(start, static_cast<std::size_t>(next) - start);
        const bool isHalfOfBreak = character == '\r' && all.substr(start).starts_with("\r\n");
        if (!isHalfOfBreak)
            kept += standIn(character, written);
    }
    return kept;
}

std::string oneLine(std::string text, std::size_t most)
{
    std::string line = printable(atMost(std::move(text), most)); // Of megabytes, only the beginning is read.
    std::ranges::replace_if(
        line, [](char byte) { return byte == '\t' || byte == '\n'; }, ' ');
    return atMost(std::move(line), most);
}

} // namespace skyvane::Unicode
