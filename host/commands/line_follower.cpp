#include "host/commands/line_follower.h"

#include "host/extension/schedule.h"

#include <algorithm>
#include <utility>

namespace skyvane {

LineFollower::LineFollower(Ask ask, Print print, const std::filesystem::path& configuration)
    : m_ask(std::move(ask))
    , m_print(std::move(print))
    , m_timer([this] { lookAtClock(); })
    , m_configuration(configuration, [this] { askSoon(); })
{
}

/// Also when the clock was set back: what was due by the old one may be far away.
void LineFollower::lookAtClock()
{
    const Date now = Clock::now();
    if (m_due <= now || now < m_asked)
        ask();
    m_timer.wakeAt(m_due);
}

void LineFollower::askSoon()
{
    m_due = std::min<Date>(m_due, m_asked + Schedule::leastWait);
    lookAtClock();
}

void LineFollower::ask()
{
    LineNews news = m_ask();
    m_asked = Clock::now();
    m_missed = news.again ? 0 : m_missed + 1;
    m_due = news.again ? std::max<Date>(*news.again, m_asked + Schedule::leastWait)
                       : m_asked + retryAfter(m_missed);
    if (news.line == m_line)
        return;
    m_line = std::move(news.line);
    m_print(m_line);
}

} // namespace skyvane
