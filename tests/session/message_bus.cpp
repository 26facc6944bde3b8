#include "tests/session/message_bus.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <fstream>
#include <stdexcept>

namespace skyvane::test {

namespace {

constexpr const char* configuration = R"(<busconfig>
  <type>session</type>
  <listen>unix:dir=FOLDER</listen>
  <servicedir>FOLDER/services</servicedir>
  <allow_anonymous/>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

MessageBus::MessageBus(const QProcessEnvironment& environment)
{
    const QString folder = QString::fromStdString(m_folder.path().string());
    std::filesystem::create_directory(m_folder.path() / "services");
    const std::string file = m_folder.path() / "bus.conf";
    std::ofstream{file} << QString::fromUtf8(configuration).replace("FOLDER", folder).toStdString();

    m_daemon.setProcessEnvironment(environment);
    m_daemon.setStandardErrorFile(QProcess::nullDevice());
    m_daemon.start("dbus-daemon",
        {"--config-file=" + QString::fromStdString(file), "--nofork", "--nopidfile", "--print-address=1"});
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

void MessageBus::offer(const QString& name, const QString& program) const
{
    const auto file = m_folder.path() / "services" / (name.toStdString() + ".service");
    std::ofstream{file} << "[D-BUS Service]\nName=" << name.toStdString()
                        << "\nExec=" << program.toStdString() << "\n";
    const QString connection = QStringLiteral("offering");
    QDBusConnection::connectToBus(m_address, connection)
        .call(QDBusMessage::createMethodCall(
            "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ReloadConfig"));
    QDBusConnection::disconnectFromBus(connection);
}

} // namespace skyvane::test
