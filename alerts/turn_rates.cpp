#include "alerts/turn_rates.h"

#include "platform/json/object.h"

namespace skyvane {

namespace {

/// A value of another type is passed over: nobody asks the feed for this one.
template <class Read>
auto wellTyped(const JSON::Object& members, std::string_view key, Read read)
    -> decltype(members.optional(key, read))
{
    try {
        return members.optional(key, read);
    } catch (const JSON::DecodingError&) {
        return {};
    }
}

void collect(JSON::Value aircraft, TurnRates& rates)
{
    const JSON::Object members{aircraft};
    const auto rate = wellTyped(members, "track_rate", JSON::number);
    if (const auto hex = rate ? wellTyped(members, "hex", JSON::text) : std::nullopt)
        rates.try_emplace(*hex, *rate);
}

} // namespace

TurnRates turnRatesIn(std::string_view answer)
{
    TurnRates rates;
    try {
        const JSON::Document document{answer};
        const JSON::Object members{document.root()};
        for (const std::string_view key : {"ac", "aircraft"}) {
            if (const auto list = members.find(key)) {
                JSON::forEach(*list, [&](JSON::Value aircraft) { collect(aircraft, rates); });
                break;
            }
        }
    } catch (const JSON::DecodingError&) {
        // Then the aircraft are not known either.
    }
    return rates;
}

} // namespace skyvane
