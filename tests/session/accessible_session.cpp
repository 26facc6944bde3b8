#include "tests/session/accessible_session.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusReply>

#include <csignal>
#include <stdexcept>

namespace skyvane::test {

namespace {

constexpr const char* sessionName = "session of the accessibility bus";
constexpr const char* busName = "accessibility bus";

QString interfaceOf(const char* name)
{
    return QStringLiteral("org.a11y.atspi.") + QString::fromLatin1(name);
}

} // namespace

QDBusMessage AccessibleObject::call(
    const QString& interface, const QString& method, const QVariantList& words) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(m_service, m_path, interface, method);
    message.setArguments(words);
    return m_bus.call(message);
}

std::string AccessibleObject::name() const
{
    const auto reply
        = call("org.freedesktop.DBus.Properties", "Get", {interfaceOf("Accessible"), QStringLiteral("Name")});
    return reply.arguments().value(0).value<QDBusVariant>().variant().toString().toStdString();
}

std::string AccessibleObject::role() const
{
    return call(interfaceOf("Accessible"), "GetRoleName").arguments().value(0).toString().toStdString();
}

QRect AccessibleObject::frame() const
{
    constexpr unsigned onScreen = 0;
    const auto reply = call(interfaceOf("Component"), "GetExtents", {onScreen});
    const auto argument = reply.arguments().value(0).value<QDBusArgument>();
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    argument.beginStructure();
    argument >> x >> y >> width >> height;
    argument.endStructure();
    return {x, y, width, height};
}

std::vector<AccessibleObject> AccessibleObject::children() const
{
    std::vector<AccessibleObject> found;
    const QDBusMessage reply = call(interfaceOf("Accessible"), "GetChildren");
    if (reply.signature() != QStringLiteral("a(so)"))
        return found;
    const auto argument = reply.arguments().at(0).value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        QString service;
        QDBusObjectPath path;
        argument.beginStructure();
        argument >> service >> path;
        argument.endStructure();
        found.emplace_back(m_bus, service, path.path());
    }
    argument.endArray();
    return found;
}

std::vector<std::string> AccessibleObject::actions() const
{
    std::vector<std::string> names;
    const QDBusMessage reply = call(interfaceOf("Action"), "GetActions");
    if (reply.signature() != QStringLiteral("a(sss)"))
        return names;
    const auto argument = reply.arguments().at(0).value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        QString name;
        QString description;
        QString keys;
        argument.beginStructure();
        argument >> name >> description >> keys;
        argument.endStructure();
        names.push_back(name.toStdString());
    }
    argument.endArray();
    return names;
}

void AccessibleObject::doAction(int index) const
{
    call(interfaceOf("Action"), "DoAction", {index});
}

AccessibleSession::AccessibleSession(XSession& session)
{
    session.set("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    session.bus().offer("org.a11y.Bus", "/usr/libexec/at-spi-bus-launcher");
    const QDBusConnection bus
        = QDBusConnection::connectToBus(session.environment().value("DBUS_SESSION_BUS_ADDRESS"), sessionName);
    const QDBusMessage reply = bus.call(
        QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"));
    if (reply.type() != QDBusMessage::ReplyMessage)
        throw std::runtime_error{"no accessibility bus: " + reply.errorMessage().toStdString()};
    QDBusConnection::connectToBus(reply.arguments().at(0).toString(), busName);
}

AccessibleSession::~AccessibleSession()
{
    const QDBusConnection bus{sessionName};
    const QDBusReply<uint> launcher = bus.interface()->servicePid("org.a11y.Bus");
    if (launcher.isValid())
        ::kill(static_cast<pid_t>(launcher.value()), SIGTERM);
    QDBusConnection::disconnectFromBus(busName);
    QDBusConnection::disconnectFromBus(sessionName);
}

std::vector<AccessibleObject> AccessibleSession::programs() const
{
    return AccessibleObject{
        QDBusConnection{busName}, "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"}
        .children();
}

} // namespace skyvane::test
