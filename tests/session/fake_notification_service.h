#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QStringList>

#include <string>
#include <vector>

namespace skyvane::test {

/// A notification as it came over the bus.
struct ShownNotification {
    unsigned id; ///< 0 of the portal's.
    std::string key; ///< Of the portal's.
    std::string title;
    std::string body;
    QStringList actions;
    unsigned replaced = 0;
};

/// The session's notification service, on a bus of the test's.
class FakeNotificationService : public QDBusVirtualObject {
public:
    static constexpr QLatin1String name{"org.freedesktop.Notifications"};
    static constexpr QLatin1String place{"/org/freedesktop/Notifications"};

    explicit FakeNotificationService(QDBusConnection bus, QStringList capabilities = {"body", "actions"})
        : m_bus(std::move(bus)), m_capabilities(std::move(capabilities))
    {
        m_bus.registerVirtualObject(place, this);
        m_bus.registerService(name);
    }
    ~FakeNotificationService() override
    {
        m_bus.unregisterService(name);
        m_bus.unregisterObject(place);
    }
    FakeNotificationService(const FakeNotificationService&) = delete;
    FakeNotificationService& operator=(const FakeNotificationService&) = delete;

    bool isInhibited = false;
    std::vector<ShownNotification> shown{};

    /// The user clicks one; `token` may be empty.
    void click(unsigned id, const QString& token, const QString& action = "default")
    {
        if (!token.isEmpty())
            emitSignal("ActivationToken", {id, token});
        emitSignal("ActionInvoked", {id, action});
    }
    void close(unsigned id) { emitSignal("NotificationClosed", {id, 2U}); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        const QVariantList arguments = message.arguments();
        if (message.member() == "GetCapabilities")
            return connection.send(message.createReply(m_capabilities));
        if (message.member() == "Get" && arguments.value(1) == "Inhibited")
            return connection.send(message.createReply(QVariant::fromValue(QDBusVariant{isInhibited})));
        if (message.member() != "Notify")
            return false;
        const auto id = static_cast<unsigned>(shown.size() + 1);
        shown.push_back({
            .id = id,
            .key = {},
            .title = arguments.value(3).toString().toStdString(),
            .body = arguments.value(4).toString().toStdString(),
            .actions = arguments.value(5).toStringList(),
            .replaced = arguments.value(1).toUInt(),
        });
        return connection.send(message.createReply(id));
    }

private:
    void emitSignal(const char* signal, const QVariantList& arguments)
    {
        auto message = QDBusMessage::createSignal(place, name, QLatin1String{signal});
        message.setArguments(arguments);
        m_bus.send(message);
    }

    QDBusConnection m_bus;
    QStringList m_capabilities;
};

} // namespace skyvane::test
