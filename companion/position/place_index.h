#pragma once

#include "companion/position/place.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace skyvane {

/// From where somebody looks for a place: what is near counts before equal names elsewhere.
struct Vantage {
    std::string countryCode{}; ///< In capitals or not; may be empty.
    std::string timeZone{}; ///< Olson identifier; may be empty.
};

/// A city seen from somewhere.
struct NearbyPlace {
    std::string name;
    double distanceNM;
    double bearingDeg; ///< From the city.

    bool operator==(const NearbyPlace&) const = default;
};

/// Finds places by what one has typed of their names. Case, accents and punctuation make no difference.
class PlaceIndex {
public:
    explicit PlaceIndex(std::vector<Place> places);

    /// The best `limit` places, best first: the name itself or an airport's code, names that begin so, names
    /// and regions of which some words do, names that hold it, then names with one typing error. Among equals
    /// cities come before airports, what is near the user's time zone before the rest, of those with the name
    /// itself well-known ones, else those of the user's own country, then the larger.
    std::vector<Place> find(std::string_view typed, const Vantage& from, std::size_t limit) const;

    /// The city by which one would say where that is: near or large. Absent where there is none for 300
    /// nautical miles.
    std::optional<NearbyPlace> nearest(const Coordinate& position) const;

    /// Whether a place with this name, in any language, is within 30 nautical miles.
    bool isNameOfThere(std::string_view name, const Coordinate& position) const;

private:
    struct Entry {
        Place place;
        std::string names; ///< Folded, each between line breaks: the own and the English one, then others.
        std::size_t ownNames; ///< Length of the first part.
        std::string codes; ///< Likewise.
        std::string region; ///< Folded, behind a blank.
    };

    struct Query;
    struct Match;

    static int rank(const Entry& entry, const Query& query);
    static bool isNearly(const Entry& entry, const Query& query);
    std::vector<Match> matches(const Query& query) const;
    std::optional<Coordinate> middleOf(const std::string& timeZone) const;

    std::vector<Entry> m_entries;
};

} // namespace skyvane
