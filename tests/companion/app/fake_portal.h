#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>

namespace skyvane::test {

inline constexpr QLatin1String portalSettings{"org.freedesktop.portal.Settings"};
inline constexpr QLatin1String portalPath{"/org/freedesktop/portal/desktop"};

/// The desktop's own word on dark and light.
class FakePortal : public QDBusVirtualObject {
public:
    explicit FakePortal(QDBusConnection bus, unsigned scheme) : m_bus(std::move(bus)), m_scheme(scheme)
    {
        m_bus.registerVirtualObject(portalPath, this);
        m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    ~FakePortal() override
    {
        m_bus.unregisterService(QStringLiteral("org.freedesktop.portal.Desktop"));
        m_bus.unregisterObject(portalPath);
    }
    FakePortal(const FakePortal&) = delete;
    FakePortal& operator=(const FakePortal&) = delete;

    void change(unsigned scheme)
    {
        m_scheme = scheme;
        auto signal
            = QDBusMessage::createSignal(portalPath, portalSettings, QStringLiteral("SettingChanged"));
        signal << QStringLiteral("org.freedesktop.appearance") << QStringLiteral("color-scheme")
               << QVariant::fromValue(QDBusVariant{scheme});
        m_bus.send(signal);
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        const QVariantList expected{
            QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme")};
        if (message.member() != QStringLiteral("Read") || message.arguments() != expected)
            return false;
        const QVariant inner = QVariant::fromValue(QDBusVariant{m_scheme});
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant{inner})));
    }

private:
    QDBusConnection m_bus;
    unsigned m_scheme;
};

} // namespace skyvane::test
