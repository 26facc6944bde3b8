#pragma once

#include "core/enrichment/plane_photo.h"
#include "platform/net/transport.h"

#include <optional>
#include <stop_token>
#include <string_view>

/// Photographs of single aircraft, from a public photo service. Nothing is cached and no image is loaded.
namespace skyvane::PhotoAPI {

inline constexpr std::string_view host = "api.planespotters.net";
inline constexpr std::string_view website = "www.planespotters.net"; ///< Where people read about the service.

/// One request for the ICAO address as it stands. Absent on every failure, cancellation included; never
/// throws.
std::optional<PlanePhoto> fetch(std::string_view hex, const Transport& transport, std::stop_token stop = {});

} // namespace skyvane::PhotoAPI
