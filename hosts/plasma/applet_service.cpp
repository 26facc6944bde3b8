#include "hosts/plasma/applet_service.h"

#include "desk/bus/names.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <utility>

namespace skyvane {

namespace {

/// Plasma's own list of widgets, from which applets are added.
QDBusMessage listCall()
{
    return QDBusMessage::createMethodCall(QStringLiteral("org.kde.plasmashell"),
        QStringLiteral("/PlasmaShell"), QStringLiteral("org.kde.PlasmaShell"),
        QStringLiteral("toggleWidgetExplorer"));
}

QDBusMessage quitCall()
{
    return QDBusMessage::createMethodCall(
        BusName::host(), BusName::path(BusName::host()), BusName::host(), QStringLiteral("Quit"));
}

} // namespace

AppletService::AppletService(QDBusConnection bus, Actions actions)
    : m_bus(std::move(bus)), m_actions(std::move(actions))
{
    for (const QString& name : {BusName::shell(), BusName::host()})
        m_bus.registerVirtualObject(BusName::path(name), this);
    m_bus.registerService(BusName::shell());
}

AppletService::~AppletService()
{
    setShown(false);
    m_bus.unregisterService(BusName::shell());
    for (const QString& name : {BusName::shell(), BusName::host()})
        m_bus.unregisterObject(BusName::path(name));
}

/// Behind a host that ends waits the queue for its name.
void AppletService::setShown(bool areShown)
{
    QDBusConnectionInterface* bus = m_bus.interface();
    if (bus == nullptr)
        return;
    if (!areShown) {
        bus->unregisterService(BusName::host());
    } else if (bus->registerService(BusName::host(), QDBusConnectionInterface::QueueService)
        == QDBusConnectionInterface::ServiceQueued) {
        m_bus.send(quitCall());
    }
}

QString AppletService::introspect(const QString&) const
{
    return {};
}

bool AppletService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    if (isDone(message.member()))
        return connection.send(message.createReply(
            message.interface() == BusName::host() ? QVariantList{QString{}} : QVariantList{}));
    return connection.send(message.createErrorReply(BusName::host() + QStringLiteral(".Refused"),
        QStringLiteral("the widgets are Plasma's applets: they are placed and removed in its edit mode")));
}

bool AppletService::isDone(const QString& method)
{
    if (method == QStringLiteral("Start"))
        m_actions.start();
    else if (method == QStringLiteral("Quit"))
        m_actions.quit();
    else if (method == QStringLiteral("Refresh"))
        m_actions.refresh();
    else if (method == QStringLiteral("ShowGallery"))
        m_bus.send(listCall());
    else
        return false;
    return true;
}

} // namespace skyvane
