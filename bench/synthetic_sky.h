#pragma once

#include "core/views/sky_entry.h"

#include <cstddef>
#include <string>

namespace skyvane::bench {

/// An aggregator's answer of this many aircraft, with the keys and the value shapes of a real one. The same
/// count gives the same bytes.
std::string syntheticAnswer(std::size_t aircraftCount);

/// The entry that such an answer makes.
SkyEntry syntheticEntry(std::size_t aircraftCount);

} // namespace skyvane::bench
