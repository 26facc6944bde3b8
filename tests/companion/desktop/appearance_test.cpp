#include "companion/desktop/appearance.h"
#include "tests/session/private_bus.h"
#include "tests/session/wait_for.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

namespace skyvane {

namespace {

constexpr QLatin1String settings{"org.freedesktop.portal.Settings"};
constexpr QLatin1String path{"/org/freedesktop/portal/desktop"};

/// The desktop's own word on dark and light.
class FakePortal : public QDBusVirtualObject {
public:
    explicit FakePortal(QDBusConnection bus, unsigned scheme) : m_bus(std::move(bus)), m_scheme(scheme)
    {
        m_bus.registerVirtualObject(path, this);
        m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    ~FakePortal() override
    {
        m_bus.unregisterService(QStringLiteral("org.freedesktop.portal.Desktop"));
        m_bus.unregisterObject(path);
    }
    FakePortal(const FakePortal&) = delete;
    FakePortal& operator=(const FakePortal&) = delete;

    void change(unsigned scheme)
    {
        auto signal = QDBusMessage::createSignal(path, settings, QStringLiteral("SettingChanged"));
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

class AppearanceTest : public testing::Test {
protected:
    ~AppearanceTest() override { QApplication::setPalette(before); }

    static bool comesToBeDark(bool isDark)
    {
        return test::waitFor(
            [&] { return (QApplication::palette().color(QPalette::Window).lightness() < 128) == isDark; });
    }

    QPalette before = QApplication::palette();
    test::PrivateBus session;
};

} // namespace

TEST_F(AppearanceTest, theDesktopsChoiceIsFollowed)
{
    FakePortal portal{session.other(), 1};
    const Appearance appearance{session.connection()};
    EXPECT_TRUE(comesToBeDark(true));
    portal.change(2);
    EXPECT_TRUE(comesToBeDark(false));
    portal.change(1);
    EXPECT_TRUE(comesToBeDark(true));
    portal.change(0);
    EXPECT_TRUE(comesToBeDark(false));
}

TEST_F(AppearanceTest, aDesktopThatSpeaksLateIsFollowedToo)
{
    const Appearance appearance{session.connection()};
    FakePortal portal{session.other(), 0};
    portal.change(1);
    EXPECT_TRUE(comesToBeDark(true));
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), Appearance::darkPalette().color(QPalette::Base));
}

} // namespace skyvane
