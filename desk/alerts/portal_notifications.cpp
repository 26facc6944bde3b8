#include "desk/alerts/portal_notifications.h"

#include "desk/activation.h"
#include "desk/bus/names.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include <utility>

namespace skyvane {

namespace {

QString portalInterface()
{
    return QStringLiteral("org.freedesktop.portal.Notification");
}

/// Not one that begins with "app.", which would start the program anew.
QString openAction()
{
    return QStringLiteral("open");
}

/// The activation token that newer portals send among the parameters.
QString tokenIn(const QVariantList& parameters)
{
    for (QVariant parameter : parameters) {
        if (parameter.canConvert<QDBusVariant>())
            parameter = parameter.value<QDBusVariant>().variant();
        if (QString token = Activation::tokenIn(qdbus_cast<QVariantMap>(parameter)); !token.isEmpty())
            return token;
    }
    return {};
}

} // namespace

PortalNotifications::PortalNotifications(QDBusConnection bus, QString program)
    : m_bus(std::move(bus)), m_program(std::move(program))
{
}

QDBusPendingCall PortalNotifications::askVersion() const
{
    // Newer portals ask programs outside a sandbox for their names; the answer does not matter.
    auto name = QDBusMessage::createMethodCall(BusName::portal(), BusName::portalPath(),
        QStringLiteral("org.freedesktop.host.portal.Registry"), QStringLiteral("Register"));
    name << m_program << QVariantMap{};
    m_bus.asyncCall(name);
    auto message = QDBusMessage::createMethodCall(BusName::portal(), BusName::portalPath(),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    message << portalInterface() << QStringLiteral("version");
    return m_bus.asyncCall(message);
}

void PortalNotifications::show(const Notification& notification)
{
    listen();
    auto message = QDBusMessage::createMethodCall(
        BusName::portal(), BusName::portalPath(), portalInterface(), QStringLiteral("AddNotification"));
    message << notification.key
            << QVariantMap{
                   {QStringLiteral("title"), notification.title},
                   {QStringLiteral("body"), notification.body},
                   {QStringLiteral("priority"), QStringLiteral("normal")},
                   {QStringLiteral("default-action"), openAction()},
               };
    auto* answer = new QDBusPendingCallWatcher{m_bus.asyncCall(message), this};
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, notification] {
        if (answer->isError())
            emit refused(notification);
        answer->deleteLater();
    });
}

void PortalNotifications::listen()
{
    if (!std::exchange(m_isListening, true))
        m_bus.connect(BusName::portal(), BusName::portalPath(), portalInterface(),
            QStringLiteral("ActionInvoked"), this, SLOT(invoke(QString, QString, QVariantList)));
}

void PortalNotifications::invoke(const QString& key, const QString& action, const QVariantList& parameters)
{
    if (action == openAction())
        emit activated(key, tokenIn(parameters));
}

} // namespace skyvane
