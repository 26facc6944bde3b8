#include "platform/json/exact_number.h"

#include "platform/json/number_text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace skyvane::JSON::Exact {

using NumberText::at;
using NumberText::isExponentMark;
using NumberText::isMantissa;

namespace {

constexpr std::size_t shortestRun = 15; ///< Digits and point of a number that a double may round.

bool isOddNumberAt(std::string_view text, std::size_t start)
{
    const std::size_t end = NumberText::end(text, start);
    return end > start && NumberText::isOdd(text.substr(start, end - start));
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
    const std::size_t start = NumberText::start(text, place);
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
    return isExponent && isOddNumberAt(text, NumberText::start(text, minus - 2));
}

bool hasOddMinus(std::string_view text, std::size_t start, std::size_t end)
{
    for (std::size_t place = start; place < std::min(end, text.size()); ++place) {
        if (text[place] == '-' && isOddMinus(text, place))
            return true;
    }
    return false;
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

} // namespace skyvane::JSON::Exact
