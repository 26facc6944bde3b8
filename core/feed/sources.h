#pragma once

#include "core/model/home_location.h"

#include <span>
#include <string>

namespace skyvane::ADSB {

/// A community aggregator.
struct Source {
    std::string name; ///< Its host, for messages.
    std::string website; ///< Where people read about it.
    std::string (*url)(const HomeLocation& home, int radiusNM);
};

/// All that are asked, in this order.
std::span<const Source> sources();

} // namespace skyvane::ADSB
