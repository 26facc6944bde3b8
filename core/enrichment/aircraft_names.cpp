#include "core/enrichment/aircraft_types.h"
#include "core/enrichment/airlines.h"
#include "core/model/aircraft.h"
#include "platform/text/unicode.h"

namespace skyvane {

std::optional<std::string> Aircraft::typeName() const
{
    if (const auto name = AircraftTypes::name(typeCode))
        return std::string{*name};
    if (typeDescription && !typeDescription->empty())
        return Unicode::wordsCapitalized(*typeDescription);
    return std::nullopt;
}

std::optional<std::string> Aircraft::operatorDisplayName() const
{
    if (operatorName && !operatorName->empty())
        return Unicode::wordsCapitalized(*operatorName);
    if (const auto name = Airlines::name(flight))
        return std::string{*name};
    return std::nullopt;
}

} // namespace skyvane
