#pragma once

#include "companion/position/place.h"

#include <map>
#include <string>
#include <vector>

/// The places of the system's weather library.
namespace skyvane::WeatherPlaces {

struct Known {
    std::vector<Place> places{};
    std::vector<std::string> englishRegions{}; ///< Of each place: what tells namesakes apart in catalogues.
    std::map<std::string, std::string> countries{}; ///< By their codes, in the user's language.
};

/// All cities and airports, each once; any one thread at a time.
Known read();

/// Adds the names in all languages that the library has on this machine.
void addNamesOfAllLanguages(Known& known);

} // namespace skyvane::WeatherPlaces
