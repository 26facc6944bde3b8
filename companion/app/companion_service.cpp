#include "companion/app/companion_service.h"

#include "desk/activation.h"

#include <QDBusArgument>
#include <QDBusMessage>

#include <utility>

namespace skyvane {

namespace {

QString interface()
{
    return QStringLiteral("org.freedesktop.Application");
}

QString tokenOf(const QVariant& platformData)
{
    return Activation::tokenIn(qdbus_cast<QVariantMap>(platformData));
}

} // namespace

QString CompanionService::name()
{
    return QStringLiteral("org.skyvane.Companion");
}

QString CompanionService::path()
{
    return QStringLiteral("/org/skyvane/Companion");
}

CompanionService::CompanionService(QDBusConnection bus, CompanionActions actions)
    : m_bus(std::move(bus)), m_actions(std::move(actions))
{
    m_bus.registerVirtualObject(path(), this);
}

CompanionService::~CompanionService()
{
    m_bus.unregisterObject(path());
}

QString CompanionService::introspect(const QString&) const
{
    return QStringLiteral(R"(  <interface name="org.freedesktop.Application">
    <method name="Activate"><arg name="platform_data" type="a{sv}" direction="in"/></method>
    <method name="Open">
      <arg name="uris" type="as" direction="in"/>
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
    <method name="ActivateAction">
      <arg name="action_name" type="s" direction="in"/>
      <arg name="parameter" type="av" direction="in"/>
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
  </interface>
)");
}

bool CompanionService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    if (message.interface() != interface())
        return false;
    const QString call = message.member() + QLatin1Char{'('} + message.signature() + QLatin1Char{')'};
    const QVariantList arguments = message.arguments();
    if (call == QStringLiteral("Activate(a{sv})"))
        m_actions.activate(tokenOf(arguments.at(0)));
    else if (call == QStringLiteral("Open(asa{sv})"))
        m_actions.open(qdbus_cast<QStringList>(arguments.at(0)), tokenOf(arguments.at(1)));
    else if (call == QStringLiteral("ActivateAction(sava{sv})")
        && arguments.at(0) == QStringLiteral("settings"))
        m_actions.showSettings(tokenOf(arguments.at(2)));
    else
        return false;
    return connection.send(message.createReply());
}

} // namespace skyvane
