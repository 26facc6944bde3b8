#pragma once

#include "tests/host/x_session.h"

#include <QDBusConnection>

namespace skyvane::test {

/// A session with this process on its message bus, the programs that it starts included.
class PrivateBus {
public:
    PrivateBus() { qputenv(variable, m_address); }
    ~PrivateBus()
    {
        for (const char* name : {"private", "other"})
            QDBusConnection::disconnectFromBus(QString::fromUtf8(name));
        qputenv(variable, m_before);
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    const QDBusConnection& connection() const { return m_bus; }

    /// Another peer on the same bus.
    const QDBusConnection& other() const { return m_other; }

private:
    static constexpr const char* variable = "DBUS_SESSION_BUS_ADDRESS";

    QByteArray m_before = qgetenv(variable);
    XSession m_session;
    QByteArray m_address = m_session.environment().value(QString::fromUtf8(variable)).toUtf8();
    QDBusConnection m_bus
        = QDBusConnection::connectToBus(QString::fromUtf8(m_address), QStringLiteral("private"));
    QDBusConnection m_other
        = QDBusConnection::connectToBus(QString::fromUtf8(m_address), QStringLiteral("other"));
};

} // namespace skyvane::test
