#include "host/extension/wall_clock_timer.h"

#include <cerrno>
#include <cstdint>
#include <sys/timerfd.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace skyvane {

WallClockTimer::WallClockTimer(std::function<void()> wake)
    : m_timer(timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC)), m_wake(std::move(wake))
{
    if (m_timer < 0)
        throw std::system_error(errno, std::generic_category(), "no wall clock timer");
    m_notifier = std::make_unique<QSocketNotifier>(m_timer, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] {
        std::uint64_t count = 0; // A clock that was set makes the read fail, which is a reason to wake too.
        [[maybe_unused]] const ssize_t size = ::read(m_timer, &count, sizeof count);
        m_wake();
    });
}

WallClockTimer::~WallClockTimer()
{
    m_notifier.reset();
    ::close(m_timer);
}

void WallClockTimer::wakeAt(Date moment)
{
    using namespace std::chrono;
    // A zero moment would disarm the timer.
    const auto since = std::max(moment.time_since_epoch(), milliseconds{1});
    const auto whole = floor<seconds>(since);
    itimerspec spec{};
    spec.it_value.tv_sec = whole.count();
    spec.it_value.tv_nsec = duration_cast<nanoseconds>(since - whole).count();
    timerfd_settime(m_timer, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &spec, nullptr);
}

} // namespace skyvane
