#pragma once

#include "desk/alerts/notification.h"

#include <QDBusConnection>
#include <QHash>
#include <QObject>
#include <QStringList>

#include <optional>
#include <vector>

namespace skyvane {

/// The notification service's (org.freedesktop.Notifications), as its specification has it. A service that
/// reads markup gets none.
class ServiceNotifications : public QObject {
    Q_OBJECT
public:
    ServiceNotifications(QDBusConnection bus, QString program);

public slots:
    void show(const skyvane::Notification& notification);

signals:
    void activated(const QString& key, const QString& token);

private slots:
    void takeToken(uint id, const QString& token);
    void invoke(uint id, const QString& action);
    void forget(uint id);

private:
    void listen();
    void askCapabilities();
    void showAll();
    void notify(const Notification& notification);

    QDBusConnection m_bus;
    QString m_program;
    bool m_isListening = false;
    std::optional<QStringList> m_capabilities; ///< Absent until they are known.
    std::vector<Notification> m_waiting;
    QHash<uint, QString> m_shown; ///< Keys of those that stand, by the service's numbers.
    QHash<uint, QString> m_tokens; ///< Of clicks whose action is still to be told.
};

} // namespace skyvane
