#pragma once

#include "desk/bus/names.h"

#include <QDBusConnection>

#include <chrono>

namespace skyvane {

/// Single instance: a session's first start of a program takes the program's name on the message bus and owns
/// it until it ends. A later start asks the owner to do what it was started for.
class SingleInstance {
public:
    /// Time-out of an owner's answer.
    static constexpr std::chrono::milliseconds patience{10'000};

    /// Takes the name, behind which the object has to stand by then: whoever sees the name may call it.
    SingleInstance(QDBusConnection bus, QString name);
    /// Gives the name back.
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// False where another process owns the name. Without a bus every start is the first.
    bool isFirst() const { return m_isFirst; }

    /// The finished reply of the name's owner. `call` makes a call of an `Interface`, and gives the pending
    /// reply.
    template <class Interface, class Call>
    static auto askOwner(const QDBusConnection& bus, const QString& name, const Call& call)
    {
        Interface owner{name, BusName::path(name), bus};
        owner.setTimeout(static_cast<int>(patience.count()));
        auto reply = call(owner);
        reply.waitForFinished();
        return reply;
    }

private:
    QDBusConnection m_bus;
    QString m_name;
    bool m_isFirst;
};

} // namespace skyvane
