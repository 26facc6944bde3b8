#pragma once

#include "platform/clock.h"
#include "platform/net/url.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace skyvane {

/// What the user wants to be told of. Nothing, at first.
struct SkyAlertRules {
    /// Aircraft that will pass so high over the horizon, so soon.
    struct Overhead {
        double elevationDeg; ///< At least.
        std::chrono::milliseconds within; ///< From now.

        bool operator==(const Overhead&) const = default;
    };

    bool emergency = false;
    bool military = false;
    std::optional<Overhead> overhead{};
    std::vector<std::string> watch{}; ///< As `WatchList` reads them.

    bool operator==(const SkyAlertRules&) const = default;
};

/// Something worth telling about one aircraft, in the user's language.
struct SkyAlert {
    std::string id; ///< The same for the same aircraft and reason.
    Date at; ///< When to tell.
    std::string title;
    std::string body;
    std::optional<URL> url; ///< What a click opens.

    bool operator==(const SkyAlert&) const = default;
};

} // namespace skyvane
