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
        tell(QStringLiteral("color-scheme"), scheme);
    }

    /// 1: higher.
    void changeContrast(unsigned contrast)
    {
        m_contrast = contrast;
        tell(QStringLiteral("contrast"), contrast);
    }

    /// To the questions of all programs, so far.
    int answers() const { return m_answers; }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        const QVariantList words = message.arguments();
        const bool isScheme = words.value(1) == QStringLiteral("color-scheme");
        if (message.member() != QStringLiteral("Read")
            || words.value(0) != QStringLiteral("org.freedesktop.appearance")
            || (!isScheme && words.value(1) != QStringLiteral("contrast")))
            return false;
        const QVariant inner = QVariant::fromValue(QDBusVariant{isScheme ? m_scheme : m_contrast});
        ++m_answers;
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant{inner})));
    }

private:
    void tell(const QString& key, unsigned value)
    {
        auto signal
            = QDBusMessage::createSignal(portalPath, portalSettings, QStringLiteral("SettingChanged"));
        signal << QStringLiteral("org.freedesktop.appearance") << key
               << QVariant::fromValue(QDBusVariant{value});
        m_bus.send(signal);
    }

    QDBusConnection m_bus;
    unsigned m_scheme;
    unsigned m_contrast = 0;
    int m_answers = 0;
};

} // namespace skyvane::test
