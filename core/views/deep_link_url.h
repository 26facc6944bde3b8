#pragma once

#include "platform/net/url.h"

#include <cstddef>
#include <optional>
#include <string_view>

/// The addresses inside the companion: the scheme, then a place.
namespace skyvane::DeepLinkURL {

inline constexpr std::string_view scheme = "skyvane://";
inline constexpr std::string_view skyPlace = "open";
inline constexpr std::string_view aircraftPlace = "aircraft"; ///< A slash and the aircraft's address follow.
inline constexpr std::size_t longest = 256; ///< Bytes.

/// The page of one aircraft, its identity appended as it stands; absent when that forms no URL, or one
/// so long that nobody opens it.
std::optional<URL> aircraft(std::string_view hex);

/// The page of the sky.
URL open();

} // namespace skyvane::DeepLinkURL
