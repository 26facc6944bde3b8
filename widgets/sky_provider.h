#pragma once

#include "alerts/sky_alert.h"
#include "core/views/sky_entry.h"
#include "platform/net/transport.h"

#include <stop_token>
#include <vector>

namespace skyvane {

/// What a host is to show, and when to ask again.
struct SkyTimeline {
    std::vector<SkyEntry> entries;
    Date reloadAfter;
    std::vector<SkyAlert> alerts{}; ///< What is worth telling about it; none without rules.

    bool operator==(const SkyTimeline&) const = default;
};

/// Turns the shared configuration and one query of the feed into entries for every widget. Keeps nothing
/// between calls; a feed that fails is an empty sky.
struct SkyProvider {
    Transport transport;

    SkyEntry placeholder() const;

    /// The sample for a preview, at once; else live. Throws `CancellationError` when `stop` asks for it, as
    /// does `getTimeline`.
    SkyEntry getSnapshot(bool isPreview, const std::stop_token& stop = {}) const;

    SkyTimeline getTimeline(const std::stop_token& stop = {}) const;

    /// The same, and what these rules find worth telling about it.
    SkyTimeline getTimeline(const SkyAlertRules& rules, const std::stop_token& stop = {}) const;
};

} // namespace skyvane
