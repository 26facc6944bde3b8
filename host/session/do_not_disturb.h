#pragma once

#include <QDBusConnection>
#include <QObject>

#include <functional>
#include <memory>

namespace skyvane {

/// Whether the user may not be told anything now: the session is locked, as the login manager or a screen
/// saver says, or notifications are inhibited (do not disturb). Asked each time: nothing is listened to, and
/// no service is started for it. A service that is not there says no.
class DoNotDisturb : public QObject {
    Q_OBJECT
public:
    DoNotDisturb(QDBusConnection session, QDBusConnection system);

    /// `answer` is called once, from the event loop, unless this has gone by then.
    void ask(std::function<void(bool isOn)> answer);

private:
    struct Question;

    void ask(QDBusConnection bus, QDBusMessage message, const std::shared_ptr<Question>& question);

    QDBusConnection m_session;
    QDBusConnection m_system;
};

} // namespace skyvane
