#pragma once

#include <QProcess>
#include <QString>

namespace skyvane::test {

/// A message bus of its own, gone at the end of the scope.
class MessageBus {
public:
    MessageBus();
    ~MessageBus();
    MessageBus(const MessageBus&) = delete;
    MessageBus& operator=(const MessageBus&) = delete;

    const QString& address() const { return m_address; }

private:
    QProcess m_daemon;
    QString m_address;
};

} // namespace skyvane::test
