#include "host/session/do_not_disturb.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include <array>
#include <utility>

namespace skyvane {

namespace {

constexpr int patience = 2000; // Milliseconds that a service may take to answer.

QDBusMessage readProperty(const char* service, const char* path, const char* interface, const char* name)
{
    auto message = QDBusMessage::createMethodCall(QLatin1String{service}, QLatin1String{path},
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    message << QString{QLatin1String{interface}} << QString{QLatin1String{name}};
    return message;
}

struct ScreenSaver {
    const char* service; ///< And interface.
    const char* path;
};

constexpr std::array<ScreenSaver, 5> screenSavers{{
    {"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver"},
    {"org.gnome.ScreenSaver", "/org/gnome/ScreenSaver"},
    {"org.cinnamon.ScreenSaver", "/org/cinnamon/ScreenSaver"},
    {"org.mate.ScreenSaver", "/org/mate/ScreenSaver"},
    {"org.xfce.ScreenSaver", "/org/xfce/ScreenSaver"},
}};

bool isTrue(const QDBusMessage& reply)
{
    QVariant value = reply.arguments().value(0);
    if (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return reply.type() == QDBusMessage::ReplyMessage && value.toBool();
}

} // namespace

struct DoNotDisturb::Question {
    std::function<void(bool isOn)> answer;
    std::size_t open = 0; ///< Services that have not answered.
    bool isOn = false;
};

DoNotDisturb::DoNotDisturb(QDBusConnection session, QDBusConnection system)
    : m_session(std::move(session)), m_system(std::move(system))
{
}

void DoNotDisturb::ask(std::function<void(bool isOn)> answer)
{
    const auto question = std::make_shared<Question>(Question{.answer = std::move(answer)});
    ask(m_system,
        readProperty("org.freedesktop.login1", "/org/freedesktop/login1/session/auto",
            "org.freedesktop.login1.Session", "LockedHint"),
        question);
    ask(m_session,
        readProperty("org.freedesktop.Notifications", "/org/freedesktop/Notifications",
            "org.freedesktop.Notifications", "Inhibited"),
        question);
    for (const auto& [service, path] : screenSavers)
        ask(m_session,
            QDBusMessage::createMethodCall(QLatin1String{service}, QLatin1String{path},
                QLatin1String{service}, QStringLiteral("GetActive")),
            question);
    if (question->open == 0) // There is no bus.
        QMetaObject::invokeMethod(
            this, [question] { question->answer(/*isOn=*/false); }, Qt::QueuedConnection);
}

/// Replies come in the event loop, and so after all are asked for.
void DoNotDisturb::ask(QDBusConnection bus, QDBusMessage message, const std::shared_ptr<Question>& question)
{
    if (!bus.isConnected())
        return;
    ++question->open;
    message.setAutoStartService(false);
    auto* reply = new QDBusPendingCallWatcher{bus.asyncCall(message, patience), this};
    connect(reply, &QDBusPendingCallWatcher::finished, this, [reply, question] {
        question->isOn = question->isOn || isTrue(reply->reply());
        reply->deleteLater();
        if (--question->open == 0)
            question->answer(question->isOn);
    });
}

} // namespace skyvane
