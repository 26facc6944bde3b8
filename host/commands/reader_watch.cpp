#include "host/commands/reader_watch.h"

#include <sys/epoll.h>

#include <utility>

namespace skyvane {

ReaderWatch::ReaderWatch(int descriptor, std::function<void()> gone) : m_events(epoll_create1(EPOLL_CLOEXEC))
{
    epoll_event none{}; // A lost reader is told of unasked.
    if (!m_events.isOpen() || epoll_ctl(m_events.number(), EPOLL_CTL_ADD, descriptor, &none) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_events.number(), QSocketNotifier::Read);
    QObject::connect(
        m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this, gone = std::move(gone)] {
            m_notifier->setEnabled(false);
            gone();
        });
}

} // namespace skyvane
