#include "core/enrichment/route_api.h"

#include "core/enrichment/polite_request.h"
#include "platform/json/object.h"

#include <string>
#include <utility>

namespace skyvane::RouteAPI {

namespace {

struct Airport {
    std::optional<std::string> code;
    std::optional<std::string> city;
};

/// An empty IATA code is a code.
Airport airport(JSON::Value value)
{
    const JSON::Object members{value};
    auto iataCode = members.optional("iata_code", JSON::text);
    auto icaoCode = members.optional("icao_code", JSON::text);
    return {
        .code = iataCode ? std::move(iataCode) : std::move(icaoCode),
        .city = members.optional("municipality", JSON::text),
    };
}

std::optional<FlightRoute> flightRoute(JSON::Value answer)
{
    const JSON::Object response = JSON::members(answer).required("response", JSON::members);
    const auto route = response.optional("flightroute", JSON::members);
    if (!route)
        return std::nullopt;
    auto origin = route->optional("origin", airport);
    auto destination = route->optional("destination", airport);
    if (!origin || !origin->code || !destination || !destination->code)
        return std::nullopt;
    return FlightRoute{
        .originCode = *std::move(origin->code),
        .originCity = std::move(origin->city),
        .destinationCode = *std::move(destination->code),
        .destinationCity = std::move(destination->city),
    };
}

} // namespace

std::optional<FlightRoute> fetch(std::string_view callsign, const Transport& transport, std::stop_token stop)
{
    const std::string url = "https://" + std::string{host} + "/v0/callsign/" + std::string{callsign};
    return answerAt(url, transport, stop, flightRoute);
}

} // namespace skyvane::RouteAPI
