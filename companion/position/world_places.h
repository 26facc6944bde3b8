#pragma once

#include "companion/position/place.h"

#include <vector>

/// The places that this machine knows without asking anybody.
namespace skyvane::WorldPlaces {

/// All cities and airports, each once, with their English names and those in the user's language; any one
/// thread at a time.
std::vector<Place> load();

/// The same with their names in all languages that this machine has, which takes several times as long.
std::vector<Place> loadWithAllNames();

} // namespace skyvane::WorldPlaces
