#include "desk/alerts/service_notifications.h"

#include "desk/text.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QLoggingCategory>

#include <utility>

namespace skyvane {

namespace {

Q_LOGGING_CATEGORY(journal, "skyvane.notifications")

QString service()
{
    return QStringLiteral("org.freedesktop.Notifications");
}

QString path()
{
    return QStringLiteral("/org/freedesktop/Notifications");
}

/// The action of a click on the notification itself.
QString defaultAction()
{
    return QStringLiteral("default");
}

/// Services that announce no markup read it all the same, some of them: they get nothing that looks like it.
QString plain(QString text, bool readsMarkup)
{
    if (readsMarkup)
        return text.toHtmlEscaped();
    return text.replace(QLatin1Char{'<'}, QChar{0x2039}).replace(QLatin1Char{'>'}, QChar{0x203a});
}

QDBusMessage call(const QString& method)
{
    return QDBusMessage::createMethodCall(service(), path(), service(), method);
}

} // namespace

ServiceNotifications::ServiceNotifications(QDBusConnection bus, QString program)
    : m_bus(std::move(bus)), m_program(std::move(program))
{
}

void ServiceNotifications::show(const Notification& notification)
{
    m_waiting.push_back(notification);
    if (m_capabilities)
        showAll();
    else if (m_waiting.size() == 1)
        askCapabilities();
}

void ServiceNotifications::askCapabilities()
{
    listen();
    auto* answer
        = new QDBusPendingCallWatcher{m_bus.asyncCall(call(QStringLiteral("GetCapabilities"))), this};
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QStringList> capabilities = *answer;
        answer->deleteLater();
        if (capabilities.isValid()) {
            m_capabilities = capabilities.value();
            showAll();
        } else {
            qCWarning(journal, "no notification service: %s", qPrintable(capabilities.error().message()));
            m_waiting.clear(); // Another time there may be one.
        }
    });
}

void ServiceNotifications::showAll()
{
    for (const Notification& notification : std::exchange(m_waiting, {}))
        notify(notification);
}

void ServiceNotifications::notify(const Notification& notification)
{
    constexpr int asTheServiceLikes = -1; // Time-out, milliseconds.
    const bool readsMarkup = m_capabilities->contains(QStringLiteral("body-markup"));
    QStringList actions;
    if (m_capabilities->contains(QStringLiteral("actions")))
        actions << defaultAction() << localizedText("Open");
    auto message = call(QStringLiteral("Notify"));
    message << QStringLiteral("Skyvane") << m_shown.key(notification.key, 0U)
            << QStringLiteral("org.skyvane.Companion") << notification.title
            << plain(notification.body, readsMarkup) << actions
            << QVariantMap{{QStringLiteral("desktop-entry"), m_program}} << asTheServiceLikes;
    auto* answer = new QDBusPendingCallWatcher{m_bus.asyncCall(message), this};
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, key = notification.key] {
        const QDBusPendingReply<uint> id = *answer;
        answer->deleteLater();
        if (id.isValid())
            m_shown.insert(id.value(), key);
        else
            qCWarning(journal, "a notification was not taken: %s", qPrintable(id.error().message()));
    });
}

void ServiceNotifications::listen()
{
    if (std::exchange(m_isListening, true))
        return;
    const auto hear = [this](const char* signal, const char* slot) {
        m_bus.connect(service(), path(), service(), QLatin1String{signal}, this, slot);
    };
    hear("ActivationToken", SLOT(takeToken(uint, QString)));
    hear("ActionInvoked", SLOT(invoke(uint, QString)));
    hear("NotificationClosed", SLOT(forget(uint)));
}

void ServiceNotifications::takeToken(uint id, const QString& token)
{
    if (m_shown.contains(id))
        m_tokens.insert(id, token);
}

void ServiceNotifications::invoke(uint id, const QString& action)
{
    const QString token = m_tokens.take(id);
    const auto found = m_shown.constFind(id);
    if (found != m_shown.constEnd() && action == defaultAction())
        emit activated(QString{*found}, token);
}

void ServiceNotifications::forget(uint id)
{
    m_shown.remove(id);
    m_tokens.remove(id);
}

} // namespace skyvane
