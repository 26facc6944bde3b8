#pragma once

#include "tests/session/message_bus.h"

#include <QDBusConnection>

namespace skyvane::test {

/// This process on a message bus of its own, the programs that it starts included.
class PrivateBus {
public:
    PrivateBus() { qputenv(variable, m_bus.address().toUtf8()); }
    ~PrivateBus()
    {
        for (const char* name : {"private", "other"})
            QDBusConnection::disconnectFromBus(QString::fromUtf8(name));
        qputenv(variable, m_before);
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    const QDBusConnection& connection() const { return m_connection; }

    /// Another peer on the same bus.
    const QDBusConnection& other() const { return m_other; }

    const MessageBus& bus() const { return m_bus; }

private:
    static constexpr const char* variable = "DBUS_SESSION_BUS_ADDRESS";

    QByteArray m_before = qgetenv(variable);
    MessageBus m_bus;
    QDBusConnection m_connection = QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("private"));
    QDBusConnection m_other = QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("other"));
};

} // namespace skyvane::test
