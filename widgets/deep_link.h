#pragma once

#include "core/views/sky_entry.h"
#include "platform/net/url.h"

#include <optional>

namespace skyvane {

/// The companion on the entry's first aircraft, or on the sky list for a sample and for an empty sky. Absent
/// when the aircraft's identity forms no URL.
std::optional<URL> deepLink(const SkyEntry& entry);

} // namespace skyvane
