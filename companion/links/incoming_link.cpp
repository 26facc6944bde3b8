#include "companion/links/incoming_link.h"

#include "core/enrichment/ascii.h"
#include "core/views/deep_link_url.h"
#include "platform/text/localized.h"

#include <algorithm>
#include <cstddef>

namespace skyvane::IncomingLink {

namespace {

constexpr std::size_t longestHex = 8;

bool isPrintable(char character)
{
    return character > ' ' && character <= '~';
}

bool isHexDigit(char character)
{
    const char upper = ASCII::uppercased(character);
    return ASCII::isDigit(character) || (upper >= 'A' && upper <= 'F');
}

bool isInAnyCase(std::string_view text, std::string_view word)
{
    return std::ranges::equal(text, word, {}, ASCII::uppercased, ASCII::uppercased);
}

/// Drops the word from the beginning of the text, in any case, when it is there.
bool take(std::string_view& text, std::string_view word)
{
    if (!isInAnyCase(text.substr(0, word.size()), word))
        return false;
    text.remove_prefix(word.size());
    return true;
}

Target aircraft(std::string_view hex)
{
    if (hex.empty())
        return Problem::noAircraft;
    const std::string_view digits = hex.substr(hex.starts_with('~') ? 1 : 0);
    if (hex.size() > longestHex || digits.empty() || !std::ranges::all_of(digits, isHexDigit))
        return Problem::noAddress;
    return OneAircraft{.hex = std::string{hex}};
}

} // namespace

Target read(std::string_view text)
{
    if (text.size() > DeepLinkURL::longest)
        return Problem::tooLong;
    if (!std::ranges::all_of(text, isPrintable))
        return Problem::unprintable;
    if (!take(text, DeepLinkURL::scheme))
        return Problem::foreign;
    if (text.ends_with('/'))
        text.remove_suffix(1);
    if (text.empty())
        return Problem::nowhere;
    if (isInAnyCase(text, DeepLinkURL::skyPlace))
        return Sky{};
    if (!take(text, DeepLinkURL::aircraftPlace))
        return Problem::unknownPlace;
    if (text.empty())
        return Problem::noAircraft;
    return take(text, "/") ? aircraft(text) : Problem::unknownPlace;
}

std::string description(Problem problem)
{
    switch (problem) {
    case Problem::foreign:
        return localized("That link is not one of Skyvane’s.");
    case Problem::nowhere:
        return localized("That link leads nowhere: it names no place.");
    case Problem::unknownPlace:
        return localized("That link leads to a place that Skyvane does not have.");
    case Problem::noAircraft:
        return localized("That link names no aircraft.");
    case Problem::noAddress:
        return localized("That link does not name an aircraft by its address, 1 to 8 hexadecimal digits.");
    case Problem::tooLong:
        return localized("That link is too long to be one of Skyvane’s.");
    case Problem::unprintable:
        return localized("That link holds characters that no link may hold.");
    }
    return {};
}

} // namespace skyvane::IncomingLink
