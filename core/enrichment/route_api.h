#pragma once

#include "core/enrichment/flight_route.h"
#include "platform/net/transport.h"

#include <optional>
#include <stop_token>
#include <string>
#include <string_view>

/// Which airports a flight connects, and whose flight it is, from a public route database. Nothing is cached.
namespace skyvane::RouteAPI {

inline constexpr std::string_view host = "api.adsbdb.com";
inline constexpr std::string_view website = "www.adsbdb.com"; ///< Where people read about the service.

/// What the database knows of a callsign.
struct Flight {
    std::optional<FlightRoute> route{};
    std::optional<std::string> airline{}; ///< Its name.

    bool operator==(const Flight&) const = default;
};

/// One request for the callsign as it stands. Absent on every failure, cancellation included; never throws.
std::optional<FlightRoute> fetch(
    std::string_view callsign, const Transport& transport, std::stop_token stop = {});

/// The same request, for all that is known. An airline of an unexpected shape is none, and no failure.
std::optional<Flight> fetchFlight(
    std::string_view callsign, const Transport& transport, std::stop_token stop = {});

} // namespace skyvane::RouteAPI
