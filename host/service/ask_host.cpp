#include "host/service/ask_host.h"

#include "host/service/host_service.h"

#include <QDBusMessage>

namespace skyvane {

std::string askHost(QDBusConnection bus, const QString& method, const QVariantList& arguments)
{
    constexpr int patience = 10'000; // Milliseconds.
    if (!bus.isConnected())
        throw HostError{"there is no session bus to ask the running host on"};
    QDBusMessage call = QDBusMessage::createMethodCall(
        HostService::name(), HostService::path(), HostService::name(), method);
    call.setArguments(arguments);
    const QDBusMessage reply = bus.call(call, QDBus::Block, patience);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return reply.arguments().value(0).toString().toStdString();
    if (reply.errorName() == QStringLiteral("org.freedesktop.DBus.Error.ServiceUnknown"))
        throw HostError{"no host is running in this session"};
    throw HostError{reply.errorMessage().toStdString()};
}

} // namespace skyvane
