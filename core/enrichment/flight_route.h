#pragma once

#include <optional>
#include <string>

namespace skyvane {

/// Where a flight goes.
struct FlightRoute {
    std::string originCode; ///< IATA, else ICAO.
    std::optional<std::string> originCity{}; ///< Municipality.
    std::string destinationCode; ///< IATA, else ICAO.
    std::optional<std::string> destinationCity{}; ///< Municipality.

    /// "SFO → JFK".
    std::string summary() const { return originCode + arrow + destinationCode; }

    /// "San Francisco → New York"; absent unless both cities are there. An empty one is.
    std::optional<std::string> citySummary() const
    {
        if (!originCity || !destinationCity)
            return std::nullopt;
        return *originCity + arrow + *destinationCity;
    }

    bool operator==(const FlightRoute&) const = default;

private:
    static constexpr const char* arrow = " → ";
};

} // namespace skyvane
