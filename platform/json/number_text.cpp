#include "platform/json/number_text.h"

#include "platform/json/decimal.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>

namespace skyvane::JSON::NumberText {

namespace {

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

std::size_t pastDigits(std::string_view text, std::size_t at)
{
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at;
}

/// What a reader of the double alone would take it for.
std::optional<std::int64_t> rounded(double value)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (value != std::trunc(value) || value < -limit || value >= limit)
        return std::nullopt;
    return static_cast<std::int64_t>(value);
}

} // namespace

std::size_t end(std::string_view text, std::size_t start)
{
    const std::size_t whole = start + (at(text, start) == '-' ? 1 : 0);
    std::size_t past = at(text, whole) == '0' ? whole + 1 : pastDigits(text, whole);
    if (past == whole)
        return start;
    if (at(text, past) == '.' && isDigit(at(text, past + 1)))
        past = pastDigits(text, past + 1);
    if (isExponentMark(at(text, past))) {
        const bool hasSign = at(text, past + 1) == '-' || at(text, past + 1) == '+';
        const std::size_t power = past + (hasSign ? 2 : 1);
        if (isDigit(at(text, power)))
            past = pastDigits(text, power);
    }
    return past;
}

std::size_t start(std::string_view text, std::size_t place)
{
    while (place > 0 && isMantissa(text[place - 1]))
        --place;
    return place - (place > 0 && text[place - 1] == '-' ? 1 : 0);
}

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

} // namespace skyvane::JSON::NumberText
