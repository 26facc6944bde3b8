#pragma once

#include "core/model/aircraft.h"
#include "core/views/sky_entry.h"
#include "platform/clock.h"

#include <chrono>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace skyvane {

/// Where each aircraft has been seen since the program started, kept in memory only.
class Trails {
public:
    static constexpr std::chrono::hours longest{1};

    struct Sighting {
        Date at;
        Coordinate place;

        bool operator==(const Sighting&) const = default;
    };

    /// Takes note of a sky, and forgets what is older than `longest` by then. The same sky once more changes
    /// nothing.
    void note(const SkyEntry& sky);

    /// The oldest first; valid until the next `note`.
    std::span<const Sighting> of(const std::string& hex) const;

private:
    void add(const std::string& hex, const Sighting& sighting);
    void forget(Date before);

    Date m_noted{};
    std::unordered_map<std::string, std::vector<Sighting>> m_trails;
};

} // namespace skyvane
