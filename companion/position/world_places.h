#pragma once

#include "companion/position/place.h"

#include <vector>

/// The places that this machine knows without asking anybody.
namespace skyvane::WorldPlaces {

/// All cities and airports, each once. Takes some ten milliseconds; any one thread at a time.
std::vector<Place> load();

} // namespace skyvane::WorldPlaces
