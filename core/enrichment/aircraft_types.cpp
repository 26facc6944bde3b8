#include "core/enrichment/aircraft_types.h"

#include "core/enrichment/ascii.h"
#include "platform/text/unicode.h"

namespace skyvane {

const TextTable& AircraftTypes::table()
{
    static const TextTable table = uniqueTable(rows());
    return table;
}

std::optional<std::string_view> AircraftTypes::name(std::optional<std::string_view> designator)
{
    if (!designator)
        return std::nullopt;
    if (ASCII::isAlreadyUppercased(*designator))
        return valueIn(table(), *designator);
    return valueIn(table(), Unicode::uppercased(*designator));
}

} // namespace skyvane
