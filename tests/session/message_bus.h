#pragma once

#include "tests/support/scratch_folder.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>

namespace skyvane::test {

/// A message bus of its own, gone at the end of the scope. It starts no service of the machine, only what a
/// test offers.
class MessageBus {
public:
    /// The environment is that of the services it starts.
    explicit MessageBus(const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());
    ~MessageBus();
    MessageBus(const MessageBus&) = delete;
    MessageBus& operator=(const MessageBus&) = delete;

    const QString& address() const { return m_address; }

    /// From now on the bus starts this program when somebody asks for the name.
    void offer(const QString& name, const QString& program) const;

private:
    ScratchFolder m_folder;
    QProcess m_daemon;
    QString m_address;
};

} // namespace skyvane::test
