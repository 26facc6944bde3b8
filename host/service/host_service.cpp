#include "host/service/host_service.h"

#include "host/desktop/desktop.h"
#include "ui/layout/widget_container.h"

#include <QCoreApplication>
#include <QDBusMessage>

namespace skyvane {

namespace {

QDBusMessage refusal(const QDBusMessage& message, const QString& reason)
{
    return message.createErrorReply(QStringLiteral("org.skyvane.Host.Refused"), reason);
}

} // namespace

QString HostService::name()
{
    return QStringLiteral("org.skyvane.Host");
}

QString HostService::path()
{
    return QStringLiteral("/org/skyvane/Host");
}

HostService::HostService(QDBusConnection bus) : m_bus(std::move(bus))
{
    m_bus.registerVirtualObject(path(), this);
}

HostService::~HostService()
{
    m_bus.unregisterObject(path());
}

QString HostService::introspect(const QString&) const
{
    return QStringLiteral(R"(  <interface name="org.skyvane.Host">
    <method name="Add">
      <arg name="kind" type="s" direction="in"/>
      <arg name="family" type="s" direction="in"/>
      <arg name="answer" type="s" direction="out"/>
    </method>
    <method name="Remove">
      <arg name="widget" type="i" direction="in"/>
      <arg name="answer" type="s" direction="out"/>
    </method>
    <method name="Refresh"><arg name="answer" type="s" direction="out"/></method>
    <method name="ListPlaced"><arg name="answer" type="s" direction="out"/></method>
    <method name="ShowGallery"><arg name="answer" type="s" direction="out"/></method>
    <method name="Quit"><arg name="answer" type="s" direction="out"/></method>
  </interface>
)");
}

bool HostService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    const QString method = message.member();
    QDBusMessage reply = message.createReply(QString{});
    if (m_desktop == nullptr || message.interface() != name())
        return false;
    if (method == QStringLiteral("Add") && message.signature() == QStringLiteral("ss"))
        reply = add(message);
    else if (method == QStringLiteral("Remove") && message.signature() == QStringLiteral("i"))
        reply = remove(message);
    else if (!message.signature().isEmpty())
        return false;
    else if (method == QStringLiteral("Refresh"))
        m_desktop->refreshAll();
    else if (method == QStringLiteral("ListPlaced"))
        reply = message.createReply(placed());
    else if (method == QStringLiteral("ShowGallery"))
        m_desktop->showGallery();
    else if (method == QStringLiteral("Quit"))
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    else
        return false;
    return connection.send(reply);
}

QDBusMessage HostService::add(const QDBusMessage& message)
{
    const QString kind = message.arguments().at(0).toString();
    const QString family = message.arguments().at(1).toString();
    const auto known = WidgetContainer::named(family.toStdString());
    const auto widget = known ? m_desktop->add({.kind = kind.toStdString(), .family = *known}) : std::nullopt;
    if (!widget)
        return refusal(
            message, QStringLiteral("there is no widget \"%1\" of family \"%2\"").arg(kind, family));
    return message.createReply(QString::number(*widget) + QStringLiteral("\n"));
}

QDBusMessage HostService::remove(const QDBusMessage& message)
{
    const int widget = message.arguments().at(0).toInt();
    if (!m_desktop->remove(widget))
        return refusal(message, QStringLiteral("there is no placed widget %1").arg(widget));
    return message.createReply(QString{});
}

QString HostService::placed() const
{
    QString text;
    for (const PlacedWidget& widget : m_desktop->placed()) {
        text += QStringLiteral("%1\t%2\t%3\n")
                    .arg(QString::number(widget.id), QString::fromStdString(widget.target.kind),
                        QString::fromUtf8(WidgetContainer::name(widget.target.family)));
    }
    return text;
}

} // namespace skyvane
