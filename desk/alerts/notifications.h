#pragma once

#include "desk/alerts/notification.h"
#include "desk/alerts/portal_notifications.h"
#include "desk/alerts/service_notifications.h"

#include <QDBusConnection>
#include <QObject>

#include <optional>
#include <vector>

namespace skyvane {

/// Desktop notifications: by the portal where there is one, else by the notification service. Until the first
/// is shown nothing is asked of the bus, and nothing listened to.
class Notifications : public QObject {
    Q_OBJECT
public:
    /// `program`: the name of the desktop entry that they are shown for.
    Notifications(QDBusConnection bus, QString program);

    /// Without a bus nothing is shown.
    void show(const Notification& notification);

signals:
    /// The user clicked it. `token`: the activation token of the click; empty where the desktop gives none.
    void activated(const QString& key, const QString& token);

private:
    void lookForPortal();
    void showAll();

    QDBusConnection m_bus;
    PortalNotifications m_portal;
    ServiceNotifications m_service;
    std::optional<bool> m_hasPortal; ///< Absent until it is known.
    std::vector<Notification> m_waiting;
};

} // namespace skyvane
