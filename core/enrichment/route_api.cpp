#include "core/enrichment/route_api.h"

#include "core/enrichment/json_answer.h"

#include <string>
#include <tuple>
#include <utility>

namespace skyvane::RouteAPI {

namespace {

struct Airport {
    std::optional<std::string> iataCode{};
    std::optional<std::string> icaoCode{};
    std::optional<std::string> municipality{};
};

struct Route {
    std::optional<Airport> origin{};
    std::optional<Airport> destination{};
};

struct Inner {
    std::optional<Route> flightRoute{};
};

struct Wrapper {
    Inner response;
};

} // namespace

} // namespace skyvane::RouteAPI

namespace skyvane::JSON {

template <>
struct Fields<RouteAPI::Airport> {
    static constexpr auto list = std::tuple{
        field("iata_code", &RouteAPI::Airport::iataCode),
        field("icao_code", &RouteAPI::Airport::icaoCode),
        field("municipality", &RouteAPI::Airport::municipality),
    };
};

template <>
struct Fields<RouteAPI::Route> {
    static constexpr auto list = std::tuple{
        field("origin", &RouteAPI::Route::origin),
        field("destination", &RouteAPI::Route::destination),
    };
};

template <>
struct Fields<RouteAPI::Inner> {
    static constexpr auto list = std::tuple{field("flightroute", &RouteAPI::Inner::flightRoute)};
};

template <>
struct Fields<RouteAPI::Wrapper> {
    static constexpr auto list = std::tuple{field("response", &RouteAPI::Wrapper::response)};
};

} // namespace skyvane::JSON

namespace skyvane::RouteAPI {

namespace {

/// An empty IATA code is a code.
std::optional<std::string> codeOf(const Airport& airport)
{
    return airport.iataCode ? airport.iataCode : airport.icaoCode;
}

std::optional<FlightRoute> flightRoute(const Route& route)
{
    if (!route.origin || !route.destination)
        return std::nullopt;
    auto originCode = codeOf(*route.origin);
    auto destinationCode = codeOf(*route.destination);
    if (!originCode || !destinationCode)
        return std::nullopt;
    return FlightRoute{
        .originCode = *std::move(originCode),
        .originCity = route.origin->municipality,
        .destinationCode = *std::move(destinationCode),
        .destinationCity = route.destination->municipality,
    };
}

} // namespace

std::optional<FlightRoute> fetch(std::string_view callsign, const Transport& transport, std::stop_token stop)
{
    const std::string url = "https://api.adsbdb.com/v0/callsign/" + std::string{callsign};
    const auto answer = recordAt<Wrapper>(url, transport, stop);
    if (!answer || !answer->response.flightRoute)
        return std::nullopt;
    return flightRoute(*answer->response.flightRoute);
}

} // namespace skyvane::RouteAPI
