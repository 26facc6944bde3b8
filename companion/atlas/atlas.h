#pragma once

#include "core/model/aircraft.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

/// What the program brings along of the Earth, so that nobody need be asked for a map. Read anew at each
/// call, which takes some milliseconds; the texts stand in the program itself.
namespace skyvane::Atlas {

struct City {
    std::string_view name;
    std::string_view countryCode; ///< "DE".
    std::string_view areaCode; ///< Of the state or province in its country's own numbering; may be empty.
    Coordinate coordinate;
    int thousands; ///< Of inhabitants.

    bool operator==(const City&) const = default;
};

struct Airport {
    std::string_view icao; ///< "EDDM"; may be empty.
    std::string_view iata; ///< "MUC"; may be empty.
    std::string_view name;
    std::string_view city;
    std::string_view countryCode;
    Coordinate coordinate;
    bool isLarge;

    /// The shorter code, else the other.
    std::string_view code() const { return iata.empty() ? icao : iata; }

    bool operator==(const Airport&) const = default;
};

/// A place in `Lines`.
struct LinePoint {
    float latitude;
    float longitude;
};

/// Lines in pieces, each small enough to be drawn or left out as a whole.
struct Lines {
    struct Piece {
        std::uint32_t first; ///< In `points`.
        std::uint32_t count;
        LinePoint southWest; ///< Of the rectangle around it.
        LinePoint northEast;
    };

    std::vector<LinePoint> points{};
    std::vector<Piece> pieces{};

    std::span<const LinePoint> of(const Piece& piece) const
    {
        return std::span{points}.subspan(piece.first, piece.count);
    }
};

struct Earth {
    Lines coast;
    Lines borders;
};

/// The largest first.
std::vector<City> cities();

/// The large ones first.
std::vector<Airport> airports();

Earth earth();

} // namespace skyvane::Atlas
