#pragma once

#include "companion/feed/sky_feed.h"

#include <optional>
#include <string>

namespace skyvane {

/// One aircraft as the reports of the sky tell of it, one after the other.
class AircraftWatch {
public:
    enum class State {
        noHome,
        lookedFor, ///< No report has told of it yet, and the feed is being asked.
        noAnswer,
        elsewhere, ///< In neither the last report nor an earlier one.
        inRange,
        gone, ///< It was in range, and is no longer.
    };

    explicit AircraftWatch(std::string hex) : m_hex(std::move(hex)) { }

    void look(const SkyReport& report);

    State state() const { return m_state; }
    const std::string& hex() const { return m_hex; }

    /// The aircraft as it was last seen; absent until then.
    const std::optional<Aircraft>& aircraft() const { return m_aircraft; }
    Date seenAt() const { return m_seenAt; }

private:
    State stateWithout(const SkyReport& report) const;

    std::string m_hex;
    State m_state = State::lookedFor;
    std::optional<Aircraft> m_aircraft;
    Date m_seenAt{};
};

} // namespace skyvane
