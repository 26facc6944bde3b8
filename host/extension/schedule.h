#pragma once

#include "host/extension/process.h"
#include "host/extension/wall_clock_timer.h"

#include <functional>
#include <map>

namespace skyvane {

/// The entry that a widget shows.
struct ShownEntry {
    WidgetEntry entry;
    bool isStale = false; ///< Two refreshes or more were missed.

    bool operator==(const ShownEntry&) const = default;
};

/// Keeps the placed widgets fresh: the placeholder at once, then the timeline, and that again at its date.
class Schedule {
public:
    using Show = std::function<void(int widget, const ShownEntry& content)>;

    /// A reload date is kept at least this far away.
    static constexpr std::chrono::seconds leastWait{5};
    static constexpr std::chrono::minutes longestRetry{5};

    Schedule(ExtensionProcess& extension, Show show);

    void add(int widget, const WidgetTarget& target);
    void remove(int widget);

    void refresh(int widget);
    void refreshAll();

    /// After the clock was set or the machine slept: asks for what is due.
    void lookAtClock();

private:
    struct Plan {
        WidgetTarget target;
        int serial; ///< Tells this plan from an earlier one of the same widget.
        Date due;
        std::optional<WidgetTimeline> timeline{};
        std::optional<WidgetEntry> shown{};
        int missed = 0; ///< In a row.
        bool isAsking = false;
        bool isOutdated = false; ///< What is being asked for was wanted again meanwhile.
    };

    Plan* find(int widget, int serial);
    void ask(int widget, Plan& plan);
    void take(int widget, Plan& plan, const std::optional<WidgetTimeline>& timeline);
    void show(int widget, Plan& plan);
    void arm();

    ExtensionProcess& m_extension;
    Show m_show;
    WallClockTimer m_timer;
    std::map<int, Plan> m_plans;
    int m_lastSerial = 0;
};

/// The entry of a moment: the last that has begun, else the first. Null without entries.
const WidgetEntry* entryAt(const WidgetTimeline& timeline, Date moment);

/// How long to wait after this many misses in a row: 5 s, doubling, to 5 min.
std::chrono::milliseconds retryAfter(int missed);

} // namespace skyvane
