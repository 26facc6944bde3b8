#include "host/session/sleep_watch.h"

#include <utility>

namespace skyvane {

SleepWatch::SleepWatch(QDBusConnection bus, std::function<void()> woken) : m_woken(std::move(woken))
{
    bus.connect(QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"), this,
        SLOT(prepareForSleep(bool)));
}

void SleepWatch::prepareForSleep(bool isGoingToSleep)
{
    if (!isGoingToSleep)
        m_woken();
}

} // namespace skyvane
