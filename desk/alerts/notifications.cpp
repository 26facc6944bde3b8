#include "desk/alerts/notifications.h"

#include <QDBusPendingCallWatcher>

#include <utility>

namespace skyvane {

Notifications::Notifications(QDBusConnection bus, QString program)
    : m_bus(std::move(bus)), m_portal(m_bus, program), m_service(m_bus, std::move(program))
{
    connect(&m_portal, &PortalNotifications::activated, this, &Notifications::activated);
    connect(&m_portal, &PortalNotifications::refused, &m_service, &ServiceNotifications::show);
    connect(&m_service, &ServiceNotifications::activated, this, &Notifications::activated);
}

void Notifications::show(const Notification& notification)
{
    if (!m_bus.isConnected())
        return;
    m_waiting.push_back(notification);
    if (m_hasPortal)
        showAll();
    else if (m_waiting.size() == 1)
        lookForPortal();
}

void Notifications::lookForPortal()
{
    auto* answer = new QDBusPendingCallWatcher{m_portal.askVersion(), this};
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        m_hasPortal = !answer->isError();
        answer->deleteLater();
        showAll();
    });
}

void Notifications::showAll()
{
    for (const Notification& notification : std::exchange(m_waiting, {})) {
        if (*m_hasPortal)
            m_portal.show(notification);
        else
            m_service.show(notification);
    }
}

} // namespace skyvane
