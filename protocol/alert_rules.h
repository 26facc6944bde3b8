#pragma once

#include "protocol/members.h"

#include <optional>
#include <string>
#include <vector>

namespace skyvane {

/// Aircraft that will pass overhead.
struct OverheadRule {
    double elevation; ///< Degrees over the horizon, at least; 0 to 90.
    double within; ///< Seconds; above 0, at most `Limits::longestWithin`.

    bool operator==(const OverheadRule&) const = default;
};

/// What the user wants to be told of; an absent member: not of this.
struct AlertRules {
    std::optional<bool> emergency{};
    std::optional<bool> military{};
    std::optional<OverheadRule> overhead{};
    /// Callsigns, registrations, type designators and addresses, `*` for any characters; at most
    /// `Limits::mostPatterns`.
    std::optional<std::vector<std::string>> watch{};

    bool operator==(const AlertRules&) const = default;
};

template <>
struct Protocol::Members<OverheadRule> {
    static constexpr auto list = std::tuple{
        member("elevation", &OverheadRule::elevation),
        member("within", &OverheadRule::within),
    };
};

template <>
struct Protocol::Members<AlertRules> {
    static constexpr auto list = std::tuple{
        member("emergency", &AlertRules::emergency),
        member("military", &AlertRules::military),
        member("overhead", &AlertRules::overhead),
        member("watch", &AlertRules::watch),
    };
};

} // namespace skyvane
