#pragma once

#include "core/model/aircraft.h"

#include <string>
#include <vector>

namespace skyvane {

/// A place with a name that somebody may live at.
struct Place {
    std::string name; ///< In the user's language.
    std::string englishName;
    std::string region; ///< What the place lies in, innermost first: "Bavaria, Germany".
    std::string countryCode; ///< "DE".
    std::string code{}; ///< Of an airport, such as "EDDM"; empty for a city.
    std::string shortCode{}; ///< Of an airport that has one, such as "MUC".
    Coordinate coordinate;
    bool isPrincipal = false; ///< Its time zone is named after it.
    std::string timeZone{}; ///< "Europe/Berlin"; may be empty.
    int thousands = 0; ///< Of inhabitants, as far as known.
    std::vector<std::string> otherNames{}; ///< In other languages, and what else it is called.

    bool isAirport() const { return !code.empty() || !shortCode.empty(); }

    /// One line that tells the place from others of its name.
    std::string title() const;

    bool operator==(const Place&) const = default;
};

} // namespace skyvane
