#pragma once

#include "platform/net/url.h"

#include <optional>
#include <string>

namespace skyvane {

/// Where a photograph of an aircraft is, and whose it is.
struct PlanePhoto {
    URL thumbnailURL; ///< Of the image itself.
    std::optional<URL> pageURL{}; ///< The photo's page on the service.
    std::optional<std::string> photographer{}; ///< For the credit, as given.

    bool operator==(const PlanePhoto&) const = default;
};

} // namespace skyvane
