#include "platform/json/decimal.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace skyvane::JSON {

namespace {

/// No text is long enough to make up for the one that stands for those that are absurd.
std::int64_t exponentIn(std::string_view text)
{
    constexpr std::int64_t absurd = 1'000'000'000;
    text.remove_prefix(text.starts_with('+') ? 1 : 0);
    std::int64_t value = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc{})
        value = text.starts_with('-') ? -absurd : absurd;
    return std::clamp(value, -absurd, absurd);
}

} // namespace

Decimal Decimal::of(std::string_view token)
{
    Decimal result{.isNegative = token.starts_with('-')};
    const std::size_t mark = std::min(token.find_first_of("eE"), token.size());
    bool isFraction = false;
    for (const char character : token.substr(0, mark)) {
        isFraction = isFraction || character == '.';
        if (character < '0' || character > '9')
            continue;
        if (character != '0' || !result.digits.empty())
            result.digits += character;
        result.exponent -= isFraction ? 1 : 0;
    }
    while (result.digits.ends_with('0')) {
        result.digits.pop_back();
        ++result.exponent;
    }
    if (mark < token.size())
        result.exponent += exponentIn(token.substr(mark + 1));
    return result;
}

std::optional<std::int64_t> Decimal::wholeNumber() const
{
    constexpr std::int64_t mostDigits = 19;
    if (digits.empty())
        return 0;
    if (exponent < 0 || exponent >= mostDigits)
        return std::nullopt;
    std::string text = (isNegative ? "-" : "") + digits;
    text.append(static_cast<std::size_t>(exponent), '0');
    std::int64_t value = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc{})
        return std::nullopt;
    return value;
}

} // namespace skyvane::JSON
