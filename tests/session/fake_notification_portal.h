#pragma once

#include "tests/session/fake_notification_service.h"

#include <QDBusArgument>
#include <QDBusError>

namespace skyvane::test {

/// The desktop portal, as far as it takes notifications.
class FakeNotificationPortal : public QDBusVirtualObject {
public:
    static constexpr QLatin1String name{"org.freedesktop.portal.Desktop"};
    static constexpr QLatin1String place{"/org/freedesktop/portal/desktop"};
    static constexpr QLatin1String interface {
        "org.freedesktop.portal.Notification"
    };

    explicit FakeNotificationPortal(QDBusConnection bus, bool takesThem = true)
        : m_bus(std::move(bus)), m_takesThem(takesThem)
    {
        m_bus.registerVirtualObject(place, this);
        m_bus.registerService(name);
    }
    ~FakeNotificationPortal() override
    {
        m_bus.unregisterService(name);
        m_bus.unregisterObject(place);
    }
    FakeNotificationPortal(const FakeNotificationPortal&) = delete;
    FakeNotificationPortal& operator=(const FakeNotificationPortal&) = delete;

    std::vector<ShownNotification> shown{};
    int refused = 0;

    void click(const std::string& key, const QVariantList& parameters, const QString& action = "open")
    {
        auto message = QDBusMessage::createSignal(place, interface, "ActionInvoked");
        message << QString::fromStdString(key) << action << QVariant{parameters};
        m_bus.send(message);
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        const QVariantList arguments = message.arguments();
        if (message.member() == "Get" && arguments.value(0) == QString{interface})
            return connection.send(message.createReply(QVariant::fromValue(QDBusVariant{2U})));
        if (message.member() != "AddNotification")
            return false;
        if (!m_takesThem) {
            ++refused;
            return connection.send(message.createErrorReply(QDBusError::AccessDenied, "not you"));
        }
        const auto members = qdbus_cast<QVariantMap>(arguments.value(1));
        shown.push_back({
            .id = 0,
            .key = arguments.value(0).toString().toStdString(),
            .title = members.value("title").toString().toStdString(),
            .body = members.value("body").toString().toStdString(),
            .actions = {members.value("default-action").toString()},
        });
        return connection.send(message.createReply());
    }

private:
    QDBusConnection m_bus;
    bool m_takesThem;
};

} // namespace skyvane::test
