#include "companion/position/coordinates.h"

#include "companion/position/coordinate_tokens.h"
#include "companion/position/geo_uri.h"
#include "companion/position/grid_code.h"
#include "companion/position/map_link.h"
#include "platform/text/format.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace skyvane::Coordinates {

namespace {

using namespace CoordinateTokens;

using Tokens = std::span<const Token>;

constexpr double largestLatitude = 90;
constexpr double largestLongitude = 180;

/// One of a position's two angles.
struct Angle {
    double degrees;
    std::optional<Axis> axis{};
    bool isOutOfRange = false; ///< In its minutes or seconds.
};

template <class Kind>
bool is(const Token& token)
{
    return std::holds_alternative<Kind>(token);
}

template <class Kind>
std::optional<Kind> takeFirst(Tokens& tokens)
{
    if (tokens.empty() || !is<Kind>(tokens.front()))
        return std::nullopt;
    const Kind taken = std::get<Kind>(tokens.front());
    tokens = tokens.subspan(1);
    return taken;
}

template <class Kind>
std::optional<Kind> takeLast(Tokens& tokens)
{
    if (tokens.empty() || !is<Kind>(tokens.back()))
        return std::nullopt;
    const Kind taken = std::get<Kind>(tokens.back());
    tokens = tokens.first(tokens.size() - 1);
    return taken;
}

/// What stands before and behind the number, once in all; absent when it stands twice.
template <class Kind>
bool takeEither(Tokens& tokens, std::optional<Kind>& taken)
{
    for (const auto& one : {takeFirst<Kind>(tokens), takeLast<Kind>(tokens)}) {
        if (one && taken)
            return false;
        taken = one ? one : taken;
    }
    return true;
}

Axis axisOf(Hemisphere hemisphere)
{
    return hemisphere == Hemisphere::north || hemisphere == Hemisphere::south ? Axis::latitude
                                                                              : Axis::longitude;
}

/// Degrees and what divides them, each unit at most once and only the last with decimals.
std::optional<Angle> magnitude(Tokens tokens, bool needsMarks)
{
    constexpr std::array unitsPerDegree{1.0, 60.0, 3600.0};
    Angle angle{.degrees = 0};
    std::size_t nextUnit = 0;
    bool isFinished = false;
    while (!tokens.empty()) {
        const auto number = takeFirst<Number>(tokens);
        const auto mark = takeFirst<Mark>(tokens);
        if (!number || isFinished || (needsMarks && !mark && nextUnit == 0 && !tokens.empty()))
            return std::nullopt;
        const std::size_t unit = mark ? static_cast<std::size_t>(*mark) : nextUnit;
        if (unit < nextUnit || unit >= unitsPerDegree.size() || (nextUnit == 0 && unit != 0))
            return std::nullopt;
        angle.degrees += number->value / unitsPerDegree[unit];
        angle.isOutOfRange |= unit > 0 && number->value >= 60;
        isFinished = !number->isWhole;
        nextUnit = unit + 1;
    }
    return nextUnit == 0 ? std::nullopt : std::optional{angle};
}

std::optional<Angle> angle(Tokens tokens)
{
    std::optional<Axis> axis;
    std::optional<Hemisphere> hemisphere;
    // Twice, since either may stand outside: "latitude N 51", "51 N latitude".
    for (int layer = 0; layer < 2; ++layer) {
        if (!takeEither(tokens, axis) || !takeEither(tokens, hemisphere))
            return std::nullopt;
    }
    const auto sign = takeFirst<Sign>(tokens);
    if ((hemisphere && sign) || (hemisphere && axis && axisOf(*hemisphere) != *axis))
        return std::nullopt;
    auto read = magnitude(tokens, /*needsMarks=*/!hemisphere && !axis);
    if (!read)
        return std::nullopt;
    read->axis = hemisphere ? axisOf(*hemisphere) : axis;
    if (sign == Sign::minus || hemisphere == Hemisphere::south || hemisphere == Hemisphere::west)
        read->degrees = -read->degrees;
    return read;
}

template <class Kind>
std::vector<std::size_t> placesOf(Tokens tokens)
{
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < tokens.size(); ++place) {
        if (is<Kind>(tokens[place]))
            places.push_back(place);
    }
    return places;
}

/// Where the second angle begins when letters or words say which is which.
std::optional<std::size_t> seamByWords(Tokens tokens)
{
    std::optional<std::size_t> seam;
    for (std::size_t place = 1; place < tokens.size(); ++place) {
        const auto first = angle(tokens.first(place));
        const auto second = angle(tokens.subspan(place));
        if (!first || !second || !first->axis || !second->axis)
            continue;
        if (seam)
            return std::nullopt;
        seam = place;
    }
    return seam;
}

/// Where the second angle begins when nothing stands between the two: by their words, or at the second of two
/// numbers of degrees, its sign included.
std::optional<std::size_t> seam(Tokens tokens)
{
    if (std::ranges::any_of(
            tokens, [](const Token& token) { return is<Hemisphere>(token) || is<Axis>(token); }))
        return seamByWords(tokens);
    auto numbers = placesOf<Number>(tokens);
    if (numbers.size() > 2) {
        std::erase_if(numbers, [&](std::size_t place) {
            return place + 1 == tokens.size() || tokens[place + 1] != Token{Mark::degrees};
        });
    }
    if (numbers.size() != 2)
        return std::nullopt;
    const std::size_t second = numbers.back();
    return is<Sign>(tokens[second - 1]) ? second - 1 : second;
}

std::optional<std::pair<Tokens, Tokens>> halves(Tokens tokens)
{
    const auto separators = placesOf<Separator>(tokens);
    if (separators.size() == 1)
        return std::pair{tokens.first(separators.front()), tokens.subspan(separators.front() + 1)};
    if (const auto place = seam(tokens); separators.empty() && place)
        return std::pair{tokens.first(*place), tokens.subspan(*place)};
    return std::nullopt;
}

Reading position(Angle first, Angle second)
{
    if (first.axis.has_value() != second.axis.has_value() || (first.axis && first.axis == second.axis))
        return Problem::unreadable;
    if (first.axis == Axis::longitude)
        std::swap(first, second);
    if (first.isOutOfRange || second.isOutOfRange || !(std::abs(first.degrees) <= largestLatitude)
        || !(std::abs(second.degrees) <= largestLongitude))
        return Problem::outOfRange;
    constexpr double noMinusZero = 0;
    return Coordinate{.latitude = first.degrees + noMinusZero, .longitude = second.degrees + noMinusZero};
}

Reading position(const Coordinate& written)
{
    return position({.degrees = written.latitude}, {.degrees = written.longitude});
}

/// What the letter O means in the language; absent where it means nothing.
std::optional<Hemisphere> meaningOfO(std::string_view language)
{
    const auto isAmong = [&](std::initializer_list<std::string_view> languages) {
        return std::ranges::find(languages, language.substr(0, language.find('_'))) != languages.end();
    };
    if (isAmong({"de", "nl"}))
        return Hemisphere::east;
    if (isAmong({"es", "fr", "it", "pt"}))
        return Hemisphere::west;
    return std::nullopt;
}

Reading readWith(std::string_view text, Comma comma, std::string_view language)
{
    auto tokens = CoordinateTokens::read(text, comma);
    if (!tokens)
        return Problem::unreadable;
    const auto letterO = meaningOfO(language);
    const auto isO = [](const Token& token) { return is<EastOrWest>(token); };
    const bool isUnclear = !letterO && std::ranges::any_of(*tokens, isO);
    std::ranges::replace_if(*tokens, isO, Token{letterO.value_or(Hemisphere::east)});
    const auto parts = halves(*tokens);
    const auto first = parts ? angle(parts->first) : std::nullopt;
    const auto second = parts ? angle(parts->second) : std::nullopt;
    if (!first || !second)
        return Problem::unreadable;
    const Reading read = position(*first, *second);
    return isUnclear && std::holds_alternative<Coordinate>(read) ? Reading{Problem::eastOrWest} : read;
}

Reading readNumbers(std::string_view text, std::string_view language)
{
    const Reading parted = readWith(text, Comma::separator, language);
    const Reading decimal = readWith(text, Comma::decimalMark, language);
    const bool isParted = std::holds_alternative<Coordinate>(parted);
    if (isParted && std::holds_alternative<Coordinate>(decimal) && parted != decimal)
        return Problem::ambiguous;
    return isParted || decimal == Reading{Problem::unreadable} ? parted : decimal;
}

/// At most 6 decimals, none that is a zero at the end.
std::string shortest(double degrees)
{
    std::string digits = Format::fixed(degrees, 6);
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.ends_with('.'))
        digits.pop_back();
    return digits == "-0" ? "0" : digits;
}

} // namespace

Reading read(std::string_view text, std::string_view language)
{
    text = GeoUri::withoutBlanksAround(text);
    if (const auto written = GeoUri::angles(text)) {
        const bool isPlaceholder = *written == Coordinate{.latitude = 0, .longitude = 0};
        return position(isPlaceholder ? MapLink::angles(text).value_or(*written) : *written);
    }
    if (const auto middle = GridCode::middle(text))
        return *middle;
    if (GridCode::shortCode(text))
        return Problem::shortCode;
    if (MapLink::isLink(text)) {
        if (const auto written = MapLink::angles(text))
            return position(*written);
        return MapLink::isShortened(text) ? Problem::shortLink : Problem::linkWithoutPosition;
    }
    return readNumbers(text, language);
}

Coordinate rounded(const Coordinate& coordinate)
{
    const auto round = [](double degrees) { return std::round(degrees * 1e5) / 1e5; };
    return {.latitude = round(coordinate.latitude), .longitude = round(coordinate.longitude)};
}

std::string text(const Coordinate& coordinate)
{
    return shortest(coordinate.latitude) + ", " + shortest(coordinate.longitude);
}

} // namespace skyvane::Coordinates
