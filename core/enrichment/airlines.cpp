#include "core/enrichment/airlines.h"

#include "core/enrichment/ascii.h"
#include "platform/text/unicode.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace skyvane {

namespace {

constexpr std::size_t designatorLength = 3;

/// Every ASCII character but the pair CR LF, which is neither letter nor number, stands for itself. Blanks at
/// the end are not numbers either and may stay.
std::optional<std::string> designatorOfASCII(std::string_view text)
{
    while (!text.empty() && ASCII::isBlank(text.front()))
        text.remove_prefix(1);
    if (text.size() <= designatorLength || !ASCII::isDigit(text[designatorLength]))
        return std::nullopt;
    std::string designator{text.substr(0, designatorLength)};
    std::ranges::transform(designator, designator.begin(), ASCII::uppercased);
    if (!std::ranges::all_of(designator, ASCII::isUppercase))
        return std::nullopt;
    return designator;
}

std::optional<std::string> designatorOfUnicode(std::string_view text)
{
    const std::string uppercased = Unicode::uppercased(Unicode::trimmed(text));
    const std::vector<std::string_view> characters = Unicode::characters(uppercased);
    if (characters.size() <= designatorLength || !Unicode::isNumber(characters[designatorLength]))
        return std::nullopt;
    std::string designator;
    for (std::size_t index = 0; index < designatorLength; ++index) {
        if (!Unicode::isLetter(characters[index]))
            return std::nullopt;
        designator += characters[index];
    }
    return designator;
}

/// In upper case; absent unless the callsign is an airline's.
std::optional<std::string> operatorDesignator(std::string_view callsign)
{
    return ASCII::isASCII(callsign) ? designatorOfASCII(callsign) : designatorOfUnicode(callsign);
}

} // namespace

const TextTable& Airlines::table()
{
    static const TextTable table = uniqueTable(rows());
    return table;
}

bool Airlines::isAirlineCallsign(std::optional<std::string_view> callsign)
{
    return callsign && operatorDesignator(*callsign);
}

std::optional<std::string_view> Airlines::name(std::optional<std::string_view> forCallsign)
{
    if (!forCallsign)
        return std::nullopt;
    const std::optional<std::string> designator = operatorDesignator(*forCallsign);
    if (!designator)
        return std::nullopt;
    return valueIn(table(), *designator);
}

} // namespace skyvane
