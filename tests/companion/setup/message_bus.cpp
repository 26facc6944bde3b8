#include "tests/companion/setup/message_bus.h"

#include <stdexcept>

namespace skyvane::test {

MessageBus::MessageBus()
{
    m_daemon.setStandardErrorFile(QProcess::nullDevice());
    m_daemon.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address=1"});
    QByteArray address;
    while (!address.contains('\n')) {
        if (!m_daemon.waitForReadyRead(20000))
            throw std::runtime_error{"no message bus"};
        address += m_daemon.readAllStandardOutput();
    }
    m_address = QString::fromUtf8(address.trimmed());
}

MessageBus::~MessageBus()
{
    m_daemon.terminate();
    if (!m_daemon.waitForFinished(5000)) {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }
}

} // namespace skyvane::test
