#pragma once

#include "host/extension/process.h"
#include "host/extension/wall_clock_timer.h"
#include "platform/files/shared_turn.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace skyvane {

/// The entry that a widget shows.
struct ShownEntry {
    WidgetEntry entry;
    bool isStale = false; ///< Two refreshes or more were missed.
    bool isRefreshing = false; ///< The user asked for a refresh that is still to come.
    bool isExtensionStopping = false; ///< The extension stops at each request.

    bool operator==(const ShownEntry&) const = default;
};

/// Keeps the placed widgets fresh: the placeholder at once, then the timeline, and that again at its date.
/// Whatever the reason of a refresh, one question is for all widgets: they show one moment's sky, and the
/// earliest of their dates is that of the next refresh.
class Schedule {
public:
    using Show = std::function<void(int widget, const ShownEntry& content)>;

    /// A reload date is kept at least this far away.
    static constexpr std::chrono::seconds leastWait{5};
    static constexpr std::chrono::minutes longestRetry{5};
    /// Entries of a timeline that follow each other closer than that are not all shown.
    static constexpr std::chrono::seconds leastStep{1};

    /// `turn`: the file on which the user's programs agree who asks the sources; empty for one that asks
    /// nobody first.
    Schedule(ExtensionProcess& extension, Show show, std::filesystem::path turn = {});

    void add(int widget, const WidgetTarget& target);
    void remove(int widget);

    /// The same question for all; this widget shows that it was heard.
    void refresh(int widget);
    void refreshAll();

    /// What is asked for besides, from the next question on; absent: nothing.
    void setAlertRules(std::optional<AlertRules> rules) { m_alertRules = std::move(rules); }
    /// Called with the alerts of each answer that has some list of them.
    void onAlerts(std::function<void(const std::vector<Alert>&)> tell) { m_tell = std::move(tell); }

    /// After the clock was set or the machine slept: asks for what is due.
    void lookAtClock();

private:
    struct Plan {
        WidgetTarget target;
        std::optional<WidgetTimeline> timeline{};
        /// First the placeholder. Without one, no timeline is asked for: the extension may not know the
        /// widget, and would refuse the question of all.
        std::optional<WidgetEntry> shown{};
        int missed = 0; ///< Refreshes in a row.
        bool isRefreshing = false;
    };

    void refreshSoon();
    void askPlaceholder(int widget, const WidgetTarget& target);
    bool takeTurn();
    void askTimelines();
    std::optional<Protocol::TimelinesCall> question();
    void take(const std::optional<Protocol::WidgetTimelines>& answer);
    std::optional<Date> update(const std::optional<Protocol::WidgetTimelines>& answer);
    void show(int widget, Plan& plan);
    void arm();

    ExtensionProcess& m_extension;
    Show m_show;
    std::function<void(const std::vector<Alert>&)> m_tell = [](const std::vector<Alert>&) {};
    std::optional<AlertRules> m_alertRules;
    std::filesystem::path m_turnFile;
    WallClockTimer m_timer;
    std::map<int, Plan> m_plans;
    std::vector<WidgetTarget> m_asked; ///< By the last question, each once.
    Date m_due = Date::max(); ///< Of the next refresh; none is due but after the one under way.
    std::optional<SharedTurn>
        m_turn; ///< Of the extension to ask the sources, among all programs of the user.
    std::optional<Date> m_waitsSince; ///< For that turn.
    int m_missed = 0; ///< Refreshes in a row that brought nothing.
    int m_placeholders = 0; ///< Asked for and not yet there.
    bool m_isAsking = false; ///< The question waits for its turn, or for its answer.
};

/// The entry of a moment: the last that has begun, else the first. Null without entries.
const WidgetEntry* entryAt(const WidgetTimeline& timeline, Date moment);

/// When the first entry after the moment begins; `Date::max()` where none does.
Date nextEntryDate(const WidgetTimeline& timeline, Date moment);

/// How long to wait after this many misses in a row: 5 s, doubling, to 5 min.
std::chrono::milliseconds retryAfter(int missed);

} // namespace skyvane
