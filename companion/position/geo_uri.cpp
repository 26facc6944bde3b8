#include "companion/position/geo_uri.h"

#include "companion/position/parts.h"
#include "core/enrichment/ascii.h"
#include "platform/text/unicode.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace skyvane::GeoUri {

namespace {

bool startsWith(std::string_view text, std::string_view lowercasePrefix)
{
    return text.size() >= lowercasePrefix.size()
        && std::equal(lowercasePrefix.begin(), lowercasePrefix.end(), text.begin(),
            [](char expected, char character) { return expected == ASCII::lowercased(character); });
}

/// Digits, with at most a minus before and decimals behind them.
std::optional<double> number(std::string_view text)
{
    const auto isPart = [](char character) {
        return (character >= '0' && character <= '9') || character == '.' || character == '-';
    };
    double value = 0;
    const char* end = text.data() + text.size();
    if (!std::all_of(text.begin(), text.end(), isPart))
        return std::nullopt;
    const auto [stop, error] = std::from_chars(text.data(), end, value, std::chars_format::fixed);
    return stop == end && error == std::errc{} ? std::optional{value} : std::nullopt;
}

bool isOtherSystem(std::string_view parameter)
{
    return startsWith(parameter, "crs=") && !(parameter.size() == 9 && startsWith(parameter, "crs=wgs84"));
}

} // namespace

std::string_view withoutBlanksAround(std::string_view text)
{
    constexpr std::string_view lineBreaks = "\n\r";
    std::string_view before;
    while (before != text) {
        before = text;
        text = Unicode::trimmed(text);
        text.remove_prefix(std::min(text.find_first_not_of(lineBreaks), text.size()));
        text = text.substr(0, text.find_last_not_of(lineBreaks) + 1);
    }
    return text;
}

std::optional<Coordinate> angles(std::string_view text)
{
    constexpr std::string_view scheme = "geo:";
    text = withoutBlanksAround(text);
    if (!startsWith(text, scheme))
        return std::nullopt;
    text = text.substr(scheme.size(), text.find_first_of("?#") - scheme.size());
    const auto pieces = parts(text, ';');
    const auto numbers = parts(pieces.front(), ',');
    if (numbers.size() < 2 || numbers.size() > 3
        || std::any_of(pieces.begin() + 1, pieces.end(), isOtherSystem)
        || !std::all_of(numbers.begin(), numbers.end(), [](auto piece) { return number(piece).has_value(); }))
        return std::nullopt;
    return Coordinate{.latitude = *number(numbers[0]), .longitude = *number(numbers[1])};
}

} // namespace skyvane::GeoUri
