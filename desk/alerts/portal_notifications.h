#pragma once

#include "desk/alerts/notification.h"

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QObject>
#include <QVariantList>

namespace skyvane {

/// The desktop portal's notifications (org.freedesktop.portal.Notification), whose texts are plain.
class PortalNotifications : public QObject {
    Q_OBJECT
public:
    /// `program`: the name of the desktop entry that they are shown for.
    PortalNotifications(QDBusConnection bus, QString program);

    /// Tells the portal who asks, as far as it wants to know. The answer is an error where there is none.
    QDBusPendingCall askVersion() const;

    void show(const Notification& notification);

signals:
    void activated(const QString& key, const QString& token);
    /// The portal did not take it.
    void refused(const Notification& notification);

private slots:
    void invoke(const QString& key, const QString& action, const QVariantList& parameters);

private:
    void listen();

    QDBusConnection m_bus;
    QString m_program;
    bool m_isListening = false;
};

} // namespace skyvane
