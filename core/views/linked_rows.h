#pragma once

#include "core/views/sky_entry.h"
#include "ui/tree/view.h"

#include <cstddef>
#include <vector>

namespace skyvane {

/// The rows of the entry's first `limit` aircraft, each identified by its aircraft and, when linked, opening
/// it in the companion. An identity that forms no URL opens the sky list.
std::vector<View> linkedRows(const SkyEntry& entry, std::size_t limit, bool linksEnabled);

} // namespace skyvane
