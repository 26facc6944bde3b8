#include "companion/position/coordinates.h"

#include "companion/position/coordinate_tokens.h"
#include "companion/position/geo_uri.h"
#include "platform/text/format.h"

#include <algorithm>
#include <array>
#include <cmath>
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
    std::optional<Hemisphere> hemisphere{};
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

std::optional<Hemisphere> takeLastHemisphere(Tokens& tokens)
{
    if (tokens.empty() || !is<Hemisphere>(tokens.back()))
        return std::nullopt;
    const auto taken = std::get<Hemisphere>(tokens.back());
    tokens = tokens.first(tokens.size() - 1);
    return taken;
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
    const auto before = takeFirst<Hemisphere>(tokens);
    const auto after = takeLastHemisphere(tokens);
    const auto sign = takeFirst<Sign>(tokens);
    const auto hemisphere = before ? before : after;
    if ((before && after) || (hemisphere && sign))
        return std::nullopt;
    auto read = magnitude(tokens, /*needsMarks=*/!hemisphere);
    if (!read)
        return std::nullopt;
    read->hemisphere = hemisphere;
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

/// Where the second angle begins when nothing stands between the two: at its letter, behind the first one's
/// letter, or at the second of two numbers of degrees, its sign included.
std::optional<std::size_t> seam(Tokens tokens)
{
    if (const auto letters = placesOf<Hemisphere>(tokens); !letters.empty()) {
        if (letters.size() != 2)
            return std::nullopt;
        return letters.front() == 0 ? letters.back() : letters.front() + 1;
    }
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

bool isNorthSouth(Hemisphere hemisphere)
{
    return hemisphere == Hemisphere::north || hemisphere == Hemisphere::south;
}

Reading position(Angle first, Angle second)
{
    if (first.hemisphere.has_value() != second.hemisphere.has_value())
        return Problem::unreadable;
    if (first.hemisphere && isNorthSouth(*first.hemisphere) == isNorthSouth(*second.hemisphere))
        return Problem::unreadable;
    if (first.hemisphere && !isNorthSouth(*first.hemisphere))
        std::swap(first, second);
    if (first.isOutOfRange || second.isOutOfRange || std::abs(first.degrees) > largestLatitude
        || std::abs(second.degrees) > largestLongitude)
        return Problem::outOfRange;
    constexpr double noMinusZero = 0;
    return Coordinate{.latitude = first.degrees + noMinusZero, .longitude = second.degrees + noMinusZero};
}

Reading readWith(std::string_view text, Comma comma)
{
    const auto tokens = CoordinateTokens::read(text, comma);
    const auto parts = tokens ? halves(*tokens) : std::nullopt;
    const auto first = parts ? angle(parts->first) : std::nullopt;
    const auto second = parts ? angle(parts->second) : std::nullopt;
    return first && second ? position(*first, *second) : Problem::unreadable;
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

Reading read(std::string_view text)
{
    if (const auto written = GeoUri::angles(text))
        return position({.degrees = written->latitude}, {.degrees = written->longitude});
    const Reading parted = readWith(text, Comma::separator);
    const Reading decimal = readWith(text, Comma::decimalMark);
    const bool isParted = std::holds_alternative<Coordinate>(parted);
    if (isParted && std::holds_alternative<Coordinate>(decimal) && parted != decimal)
        return Problem::ambiguous;
    return isParted || decimal == Reading{Problem::unreadable} ? parted : decimal;
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
