#pragma once

#include "desk/file_watch.h"
#include "host/extension/wall_clock_timer.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace skyvane {

/// What there is to say, and when to ask again.
struct LineNews {
    std::string line;
    std::optional<Date> again{}; ///< Absent after a failure: soon, then later and later.
};

/// Keeps a line up to date: asks when it is time by the wall clock, also after the machine slept, and when
/// the shared configuration changes, and prints what has become another line. In between nothing runs.
class LineFollower {
public:
    using Ask = std::function<LineNews()>;
    using Print = std::function<void(const std::string& line)>;

    LineFollower(Ask ask, Print print, const std::filesystem::path& configuration);

    /// Asks if it is time. To be called once to begin.
    void lookAtClock();

    /// Not sooner than five seconds after the last question.
    void askSoon();

private:
    void ask();

    Ask m_ask;
    Print m_print;
    std::string m_line;
    Date m_asked = Date::min();
    Date m_due = Date::min();
    int m_missed = 0; ///< Failures in a row.
    WallClockTimer m_timer;
    FileWatch m_configuration;
};

} // namespace skyvane
