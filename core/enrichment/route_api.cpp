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

std::optional<std::string> airline(JSON::Value answer)
{
    try {
        const JSON::Object response = JSON::members(answer).required("response", JSON::members);
        const auto flight = response.optional("flightroute", JSON::members);
        const auto airline = flight ? flight->optional("airline", JSON::members) : std::nullopt;
        return airline ? airline->optional("name", JSON::text) : std::nullopt;
    } catch (const JSON::DecodingError&) {
        return std::nullopt;
    }
}

std::string urlFor(std::string_view callsign)
{
    return "https://" + std::string{host} + "/v0/callsign/" + std::string{callsign};
}

} // namespace

std::optional<FlightRoute> fetch(std::string_view callsign, const Transport& transport, std::stop_token stop)
{
    return answerAt(urlFor(callsign), transport, stop, flightRoute);
}

std::optional<Flight> fetchFlight(std::string_view callsign, const Transport& transport, std::stop_token stop)
{
    return answerAt(urlFor(callsign), transport, stop, [](JSON::Value answer) -> std::optional<Flight> {
        return Flight{.route = flightRoute(answer), .airline = airline(answer)};
    });
}

} // namespace skyvane::RouteAPI
