#include "platform/json/exact_number.h"

#include "platform/json/decimal.h"
#include "platform/json/number_text.h"

#include <charconv>
#include <cstring>
#include <random>

namespace skyvane::JSON::Exact {

namespace {

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
    return NumberText::isOdd(token) ? std::optional{kept(numberKind, token)} : std::nullopt;
}

/// Absent for any other string.
std::optional<std::string_view> numberToken(std::string_view string)
{
    if (!isToken(string) || !string.substr(mark().size()).starts_with(numberKind))
        return std::nullopt;
    return token(string);
}

} // namespace

std::optional<std::string> withTokensKept(std::string_view text)
{
    std::string result;
    std::size_t done = 0;
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t end = text[place] == '"' ? endOfString(text, place) : NumberText::end(text, place);
        if (end > text.size())
            break;
        if (end <= place + 1) {
            ++place;
            continue;
        }
        const auto instead = NumberText::isMantissa(NumberText::at(text, end))
            ? std::nullopt
            : replacement(text.substr(place, end - place));
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
