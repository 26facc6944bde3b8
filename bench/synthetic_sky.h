#pragma once

#include "core/views/sky_entry.h"

#include <cstddef>
#include <string>

namespace skyvane::bench {

/// An aggregator's answer of this many aircraft, with the keys and the value shapes of a real one. The same
/// count and the same moment give the same bytes.
std::string syntheticAnswer(std::size_t aircraftCount, unsigned moment = 0);

/// The entry that such an answer makes.
SkyEntry syntheticEntry(std::size_t aircraftCount, unsigned moment = 0);

} // namespace skyvane::bench
