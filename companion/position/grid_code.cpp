#include "companion/position/grid_code.h"

#include "core/enrichment/ascii.h"
#include "platform/text/unicode.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace skyvane::GridCode {

namespace {

constexpr std::string_view digits = "23456789CFGHJMPQRVWX"; // Of plus codes.
constexpr std::size_t plusPlace = 8; // Of the plus in a code in full.
constexpr std::size_t mostDigits = 15;
constexpr double northPole = 90;
constexpr double dateLine = 180;

std::string inCapitals(std::string_view text)
{
    std::string capitals{text};
    std::ranges::transform(capitals, capitals.begin(), ASCII::uppercased);
    return capitals;
}

/// Absent for what is no digit of a plus code.
std::optional<int> valueOf(char digit)
{
    const std::size_t value = digits.find(digit);
    return value != std::string_view::npos ? std::optional{static_cast<int>(value)} : std::nullopt;
}

/// A square by its south-western corner.
struct Square {
    double south = -northPole;
    double west = -dateLine;
    double height = 400; // Of the square that the first pair of digits divides.
    double width = 400;

    std::optional<Coordinate> middle() const
    {
        const Coordinate middle{.latitude = south + height / 2, .longitude = west + width / 2};
        const bool isOnGlobe = middle.latitude < northPole && middle.longitude < dateLine;
        return isOnGlobe ? std::optional{middle} : std::nullopt;
    }

    void step(double rows, double columns, int row, int column)
    {
        height /= rows;
        width /= columns;
        south += row * height;
        west += column * width;
    }
};

/// The square of such digits, without the plus and without padding: pairs, then digits of 5 rows by 4
/// columns.
std::optional<Square> squareOf(std::string_view code)
{
    constexpr std::size_t pairedDigits = 10;
    Square square;
    for (std::size_t place = 0; place < code.size();) {
        const auto first = valueOf(code[place]);
        if (place >= pairedDigits) {
            if (!first)
                return std::nullopt;
            square.step(5, 4, *first / 4, *first % 4);
            ++place;
            continue;
        }
        const auto second = place + 1 < code.size() ? valueOf(code[place + 1]) : std::nullopt;
        if (!first || !second)
            return std::nullopt;
        square.step(20, 20, *first, *second);
        place += 2;
    }
    return square;
}

/// Digits, with the plus where it belongs, and one digit alone never behind it.
bool isPlusCode(std::string_view code, std::size_t plus)
{
    const auto isDigit = [](char character) { return digits.find(character) != std::string_view::npos; };
    return plus != std::string_view::npos && plus >= 2 && plus % 2 == 0 && code.size() <= mostDigits + 1
        && code.size() != plus + 2 && std::ranges::all_of(code.substr(plus + 1), isDigit);
}

std::optional<Coordinate> middleOfPlusCode(std::string_view code)
{
    const std::size_t plus = code.find('+');
    if (plus != plusPlace || !isPlusCode(code, plus))
        return std::nullopt;
    std::string plain{code.substr(0, plus)};
    const bool isPadded = code.size() == plus + 1 && plain.ends_with('0');
    if (isPadded)
        plain.erase(plain.find_last_not_of('0') + 1);
    if (plain.empty())
        return std::nullopt;
    plain += code.substr(plus + 1);
    const auto square = squareOf(plain);
    return square ? square->middle() : std::nullopt;
}

/// Pairs of letters A to R, digits, letters A to X, digits, letters A to X.
std::optional<Coordinate> middleOfLocator(std::string_view locator)
{
    struct Pair {
        char first;
        int count;
    };
    constexpr std::array pairs{Pair{'A', 18}, Pair{'0', 10}, Pair{'A', 24}, Pair{'0', 10}, Pair{'A', 24}};
    if (locator.size() < 4 || locator.size() % 2 != 0 || locator.size() > 2 * pairs.size())
        return std::nullopt;
    Square square{.height = 2 * northPole, .width = 2 * dateLine};
    for (std::size_t place = 0; place < locator.size(); place += 2) {
        const auto [first, count] = pairs[place / 2];
        const int column = locator[place] - first;
        const int row = locator[place + 1] - first;
        if (column < 0 || column >= count || row < 0 || row >= count)
            return std::nullopt;
        square.step(count, count, row, column);
    }
    return square.middle();
}

} // namespace

std::optional<Coordinate> middle(std::string_view text)
{
    const std::string code = inCapitals(text);
    const auto found = middleOfPlusCode(code);
    return found ? found : middleOfLocator(code);
}

std::optional<ShortCode> shortCode(std::string_view text)
{
    const std::size_t end = text.find_first_of(" ,\t\n\r");
    const std::string code = inCapitals(text.substr(0, end));
    const std::size_t plus = code.find('+');
    const bool areDigits = std::ranges::all_of(code.substr(0, std::min(plus, code.size())),
        [](char character) { return valueOf(character).has_value(); });
    if (!isPlusCode(code, plus) || plus >= plusPlace || plus < 4 || code.size() < plus + 3 || !areDigits)
        return std::nullopt;
    std::string_view town = end == std::string_view::npos ? "" : text.substr(end);
    town.remove_prefix(std::min(town.find_first_not_of(" ,\t\n\r"), town.size()));
    return ShortCode{.code = code, .town = std::string{Unicode::trimmed(town)}};
}

std::optional<Coordinate> middleNear(const ShortCode& code, const Coordinate& place)
{
    const std::size_t missing = plusPlace - code.code.find('+');
    std::string beginning;
    Square square;
    for (std::size_t pair = 0; pair < missing; pair += 2) {
        square.height /= 20;
        square.width /= 20;
        const int row = static_cast<int>((std::min(place.latitude, 89.99999) - square.south) / square.height);
        const int column
            = static_cast<int>((std::min(place.longitude, 179.99999) - square.west) / square.width);
        beginning += {digits.at(static_cast<std::size_t>(row)), digits.at(static_cast<std::size_t>(column))};
        square.south += row * square.height;
        square.west += column * square.width;
    }
    auto found = middleOfPlusCode(beginning + code.code);
    if (!found)
        return std::nullopt;
    const auto nearer = [](double degrees, double wanted, double size) {
        return degrees - size * std::round((degrees - wanted) / size);
    };
    found->latitude = nearer(found->latitude, place.latitude, square.height);
    found->longitude = nearer(found->longitude, place.longitude, square.width);
    const bool isOnGlobe = std::abs(found->latitude) <= northPole && std::abs(found->longitude) <= dateLine;
    return isOnGlobe ? found : std::nullopt;
}

} // namespace skyvane::GridCode
