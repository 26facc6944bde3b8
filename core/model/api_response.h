#pragma once

#include "core/model/aircraft.h"

#include <optional>
#include <vector>

namespace skyvane {

/// An aggregator's answer. The sources differ in which of the two keys they use.
struct APIResponse {
    std::optional<std::vector<Aircraft>> ac{};
    std::optional<std::vector<Aircraft>> aircraft{};

    bool operator==(const APIResponse&) const = default;
};

} // namespace skyvane
