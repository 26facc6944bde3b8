#include "companion/host_switch/host_control.h"

#include "desk/activation.h"
#include "desk/bus/single_instance.h"
#include "desk/text.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QProcess>

namespace skyvane {

HostControl::HostControl(QDBusConnection bus, QString program)
    : m_bus(std::move(bus))
    , m_program(std::move(program))
    , m_host(BusName::host(), BusName::path(BusName::host()), m_bus)
    , m_watcher(BusName::host(), m_bus, QDBusServiceWatcher::WatchForOwnerChange)
{
    m_host.setTimeout(static_cast<int>(SingleInstance::patience.count()));
    m_patience.setSingleShot(true);
    m_patience.setInterval(SingleInstance::patience);
    m_patience.callOnTimeout([this] {
        m_owesGallery = false;
        emit failed(m_isRunning ? localizedText("The widgets do not answer.")
                                : localizedText("The widgets did not start."));
    });
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString&, const QString&, const QString& owner) { setRunning(!owner.isEmpty()); });
    askWhetherItRuns();
}

bool HostControl::isShellThere() const
{
    return m_bus.isConnected() && m_bus.interface()->isServiceRegistered(BusName::shell()).value();
}

void HostControl::askWhetherItRuns()
{
    auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("NameHasOwner"));
    message << BusName::host();
    auto* answer = new QDBusPendingCallWatcher{m_bus.asyncCall(message), this};
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<bool> hasOwner = *answer;
        if (hasOwner.isValid())
            setRunning(hasOwner.value());
        answer->deleteLater();
    });
}

void HostControl::setRunning(bool isRunning)
{
    m_patience.stop();
    if (std::exchange(m_isRunning, isRunning) != isRunning)
        emit runningChanged(isRunning);
    if (m_isRunning && std::exchange(m_owesGallery, false))
        askForGallery();
}

void HostControl::start()
{
    if (m_isRunning)
        return;
    QProcess host;
    host.setProgram(m_program);
    host.setArguments({QStringLiteral("--supervise")});
    host.setProcessEnvironment(Activation::withoutToken(QProcessEnvironment::systemEnvironment()));
    if (host.startDetached()) {
        m_patience.start();
    } else {
        m_owesGallery = false;
        emit failed(localizedText("The widgets’ program cannot be started: %1", {m_program.toStdString()}));
    }
}

void HostControl::stop()
{
    m_owesGallery = false;
    if (!m_isRunning)
        return;
    m_host.Quit();
    m_patience.start();
}

void HostControl::showGallery()
{
    if (m_isRunning) {
        askForGallery();
        return;
    }
    m_owesGallery = true;
    start();
}

void HostControl::askForGallery()
{
    auto* answer = new QDBusPendingCallWatcher{m_host.ShowGallery(), this};
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        if (answer->isError())
            emit failed(localizedText("The widgets do not answer."));
        answer->deleteLater();
    });
}

} // namespace skyvane
