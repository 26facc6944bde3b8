#include "platform/json/exact_number.h"

#include "platform/json/decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <random>

namespace skyvane::JSON::Exact {

namespace {

constexpr std::size_t shortestRun = 15; ///< Digits and point of a number that a double may round.

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isMantissa(char character)
{
    return isDigit(character) || character == '.';
}

bool isExponentMark(char character)
{
    return character == 'e' || character == 'E';
}

std::size_t pastDigits(std::string_view text, std::size_t at)
{
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at;
}

char at(std::string_view text, std::size_t place)
{
    return place < text.size() ? text[place] : ' ';
}

/// Past the number that stands there; where it begins when there is none to the letter of JSON.
std::size_t endOfNumber(std::string_view text, std::size_t start)
{
    const std::size_t whole = start + (at(text, start) == '-' ? 1 : 0);
    std::size_t end = at(text, whole) == '0' ? whole + 1 : pastDigits(text, whole);
    if (end == whole)
        return start;
    if (at(text, end) == '.' && isDigit(at(text, end + 1)))
        end = pastDigits(text, end + 1);
    if (isExponentMark(at(text, end))) {
        const bool hasSign = at(text, end + 1) == '-' || at(text, end + 1) == '+';
        const std::size_t power = end + (hasSign ? 2 : 1);
        if (isDigit(at(text, power)))
            end = pastDigits(text, power);
    }
    return end;
}

/// What a reader of the double alone would take it for.
std::optional<std::int64_t> rounded(double value)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (value != std::trunc(value) || value < -limit || value >= limit)
        return std::nullopt;
    return static_cast<std::int64_t>(value);
}

/// Whether the parser refuses it or gives a double that tells otherwise than the text whether, and which,
/// whole number it is.
bool isOdd(std::string_view number)
{
    if (number == "-0")
        return true;
    const auto exact = Decimal::of(number).wholeNumber();
    if (number.find_first_of(".eE") == std::string_view::npos)
        return !exact;
    double nearest = 0;
    const auto outcome = std::from_chars(number.data(), number.data() + number.size(), nearest).ec;
    return outcome != std::errc{} || rounded(nearest) != exact;
}

/// Where the digits begin that a place in a number belongs to, sign included.
std::size_t startOfNumber(std::string_view text, std::size_t place)
{
    while (place > 0 && isMantissa(text[place - 1]))
        --place;
    return place - (place > 0 && text[place - 1] == '-' ? 1 : 0);
}

bool isOddNumberAt(std::string_view text, std::size_t start)
{
    const std::size_t end = endOfNumber(text, start);
    return end > start && isOdd(text.substr(start, end - start));
}

/// Eight characters at once, in any order of bytes.
struct Eight {
    static constexpr std::uint64_t each = 0x0101010101010101;
    static constexpr std::uint64_t high = each * 0x80;

    std::uint64_t word = 0;

    explicit Eight(const char* text) { std::memcpy(&word, text, sizeof word); }

    /// All are between '.' and '9', the slash included.
    bool areMantissa() const
    {
        return (((word + each * (0x7F - '9')) | (word - each * '.') | word) & high) == 0;
    }

    /// One is '-'; seldom, another.
    bool haveMinus() const
    {
        const std::uint64_t others = word ^ each * '-';
        return ((others - each) & ~others & high) != 0;
    }
};

/// Whether a number that many digits make odd goes through the place; moves it to the end of the digits.
bool isLongOddNumber(std::string_view text, std::size_t& place)
{
    const std::size_t start = startOfNumber(text, place);
    while (place < text.size() && (isMantissa(text[place]) || text[place] == '/'))
        ++place;
    return place - start >= shortestRun && isOddNumberAt(text, start);
}

/// Whether the minus makes a zero with a sign, or a number that is too small to be told from zero.
bool isOddMinus(std::string_view text, std::size_t minus)
{
    const char next = at(text, minus + 2);
    if (at(text, minus + 1) == '0' && !isMantissa(next) && !isExponentMark(next))
        return true;
    const bool isExponent = minus >= 2 && isExponentMark(text[minus - 1]) && isMantissa(text[minus - 2]);
    return isExponent && isOddNumberAt(text, startOfNumber(text, minus - 2));
}

bool hasOddMinus(std::string_view text, std::size_t start, std::size_t end)
{
    for (std::size_t place = start; place < std::min(end, text.size()); ++place) {
        if (text[place] == '-' && isOddMinus(text, place))
            return true;
    }
    return false;
}

/// Past the closing quote of the string that opens at `start`; past the text's end when there is none.
std::size_t endOfString(std::string_view text, std::size_t start)
{
    std::size_t at = start + 1;
    while (at < text.size() && text[at] != '"')
        at += text[at] == '\\' ? 2 : 1;
    return at < text.size() ? at + 1 : text.size() + 1;
}

/// The code unit of the escape that stands there; absent when it is another.
std::optional<unsigned> escapedUnit(std::string_view text)
{
    unsigned unit = 0;
    if (text.size() < 6 || !text.starts_with("\\u"))
        return std::nullopt;
    const auto [end, error] = std::from_chars(text.data() + 2, text.data() + 6, unit, 16);
    return error == std::errc{} && end == text.data() + 6 ? std::optional{unit} : std::nullopt;
}

/// The string token with each half of a surrogate pair that stands alone replaced; absent when it has none.
std::optional<std::string> withoutLoneSurrogates(std::string_view string)
{
    std::string result;
    std::size_t done = 0;
    for (std::size_t place = string.find('\\'); place < string.size(); place = string.find('\\', place)) {
        const std::size_t start = place;
        const auto unit = escapedUnit(string.substr(place));
        place += unit ? 6 : 2;
        if (!unit || *unit < 0xD800 || *unit > 0xDFFF)
            continue;
        const auto other = *unit < 0xDC00 ? escapedUnit(string.substr(place)) : std::nullopt;
        if (other && *other >= 0xDC00 && *other <= 0xDFFF) {
            place += 6;
            continue;
        }
        result.append(string.substr(done, start - done)).append("\\uFFFD");
        done = place;
    }
    if (done == 0)
        return std::nullopt;
    return result.append(string.substr(done));
}

/// What such a string begins with: nobody outside knows it.
const std::string& mark()
{
    static const std::string text = [] {
        std::random_device random;
        std::string made = "\x01";
        for (int count = 0; count < 12; ++count)
            made += static_cast<char>('A' + random() % 26);
        return made;
    }();
    return text;
}

constexpr char numberKind = '#';
constexpr char stringKind = '"';

std::string kept(char kind, std::string_view content)
{
    std::string result = "\"\\u0001" + mark().substr(1);
    result += kind == stringKind ? "\\\"" : "#";
    return result.append(content) += '"';
}

/// What to write in a token's place; absent when it may stand.
std::optional<std::string> replacement(std::string_view token)
{
    if (token.starts_with('"')) {
        const auto sound = withoutLoneSurrogates(token);
        return sound ? std::optional{kept(stringKind, sound->substr(1, sound->size() - 2))} : std::nullopt;
    }
    if (token == "-0")
        return "-0.0";
    return isOdd(token) ? std::optional{kept(numberKind, token)} : std::nullopt;
}

/// Absent for any other string.
std::optional<std::string_view> numberToken(std::string_view string)
{
    if (!isToken(string) || !string.substr(mark().size()).starts_with(numberKind))
        return std::nullopt;
    return token(string);
}

} // namespace

bool mayBeRounded(std::string_view text)
{
    constexpr std::size_t step = sizeof(Eight); // A run of 15 digits holds eight from one of these places on.
    std::size_t place = 0;
    while (place + step <= text.size()) {
        const Eight next{text.data() + place};
        if (next.haveMinus() && hasOddMinus(text, place, place + step))
            return true;
        std::size_t end = place;
        if (next.areMantissa() && isLongOddNumber(text, end))
            return true;
        place = std::max(place + step, end - end % step);
    }
    return hasOddMinus(text, place, text.size());
}

std::optional<std::string> withTokensKept(std::string_view text)
{
    std::string result;
    std::size_t done = 0;
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t end = text[place] == '"' ? endOfString(text, place) : endOfNumber(text, place);
        if (end > text.size())
            break;
        if (end <= place + 1) {
            ++place;
            continue;
        }
        const auto instead
            = isMantissa(at(text, end)) ? std::nullopt : replacement(text.substr(place, end - place));
        if (instead) {
            result.append(text.substr(done, place - done)).append(*instead);
            done = end;
        }
        place = end;
    }
    if (done == 0)
        return std::nullopt;
    return result.append(text.substr(done));
}

bool isToken(std::string_view string)
{
    return string.starts_with('\x01') && string.starts_with(mark());
}

std::string_view token(std::string_view string)
{
    return string.substr(mark().size() + 1);
}

std::optional<double> number(std::string_view string)
{
    const auto text = numberToken(string);
    if (!text)
        return std::nullopt;
    double nearest = 0;
    if (std::from_chars(text->data(), text->data() + text->size(), nearest).ec == std::errc{})
        return nearest;
    const Decimal decimal = Decimal::of(*text);
    if (static_cast<std::int64_t>(decimal.digits.size()) + decimal.exponent >= 0)
        return std::nullopt;
    return decimal.isNegative ? -0.0 : 0.0;
}

std::optional<std::int64_t> wholeNumber(std::string_view string)
{
    const auto text = numberToken(string);
    return text ? Decimal::of(*text).wholeNumber() : std::nullopt;
}

} // namespace skyvane::JSON::Exact
