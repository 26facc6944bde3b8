#include "host/session/termination_watch.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <utility>

namespace skyvane {

namespace {

constexpr std::array requests{SIGTERM, SIGINT, SIGHUP};

/// An event descriptor: a signal handler reaches nothing else safely.
std::atomic<int>& event()
{
    static std::atomic<int> descriptor{-1};
    return descriptor;
}

void remember(int)
{
    const int error = errno;
    eventfd_write(event(), 1);
    errno = error;
}

} // namespace

TerminationWatch::TerminationWatch(std::function<void()> asked) : m_asked(std::move(asked))
{
    event() = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    m_notifier = std::make_unique<QSocketNotifier>(event(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] {
        eventfd_t count = 0;
        eventfd_read(event(), &count);
        m_asked();
    });
    for (const int signal : requests)
        std::signal(signal, remember);
}

TerminationWatch::~TerminationWatch()
{
    for (const int signal : requests)
        std::signal(signal, SIG_DFL);
    m_notifier.reset();
    close(event().exchange(-1));
}

} // namespace skyvane
