#pragma once

#include "platform/net/url.h"

#include <optional>
#include <string_view>

/// The addresses inside the companion.
namespace skyvane::DeepLinkURL {

/// The page of one aircraft, its identity appended as it stands; absent when that forms no URL, or one
/// so long that nobody opens it.
std::optional<URL> aircraft(std::string_view hex);

/// The page of the sky.
URL open();

} // namespace skyvane::DeepLinkURL
