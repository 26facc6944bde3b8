#include "host/session/do_not_disturb.h"

#include "tests/session/fake_notification_service.h"
#include "tests/session/private_bus.h"
#include "tests/session/wait_for.h"

#include <gtest/gtest.h>

#include <optional>

namespace skyvane {

namespace {

/// A service that answers every call with a truth.
class FakeLock : public QDBusVirtualObject {
public:
    FakeLock(QDBusConnection bus, QString service, QString path)
        : m_bus(std::move(bus)), m_service(std::move(service)), m_path(std::move(path))
    {
        m_bus.registerVirtualObject(m_path, this);
        m_bus.registerService(m_service);
    }
    ~FakeLock() override
    {
        m_bus.unregisterService(m_service);
        m_bus.unregisterObject(m_path);
    }
    FakeLock(const FakeLock&) = delete;
    FakeLock& operator=(const FakeLock&) = delete;

    bool isLocked = true;
    std::vector<std::string> asked{};

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        asked.push_back(message.member().toStdString());
        if (message.member() == "Get"
            && message.arguments() == QVariantList{"org.freedesktop.login1.Session", "LockedHint"})
            return connection.send(message.createReply(QVariant::fromValue(QDBusVariant{isLocked})));
        if (message.member() == "GetActive")
            return connection.send(message.createReply(isLocked));
        return false;
    }

private:
    QDBusConnection m_bus;
    QString m_service;
    QString m_path;
};

class DoNotDisturbTest : public testing::Test {
protected:
    std::optional<bool> isOn()
    {
        std::optional<bool> answer;
        doNotDisturb.ask([&](bool isOn) { answer = isOn; });
        test::waitFor([&] { return answer.has_value(); });
        return answer;
    }

    test::PrivateBus session;
    DoNotDisturb doNotDisturb{session.connection(), session.connection()};
};

} // namespace

TEST_F(DoNotDisturbTest, isOffWhereNobodySaysOtherwise)
{
    EXPECT_EQ(isOn(), false);
    const test::FakeNotificationService service{session.other()};
    EXPECT_EQ(isOn(), false);
}

TEST_F(DoNotDisturbTest, isOnWhileTheLoginManagerSaysThatTheSessionIsLocked)
{
    FakeLock lock{session.other(), "org.freedesktop.login1", "/org/freedesktop/login1/session/auto"};
    EXPECT_EQ(isOn(), true);
    lock.isLocked = false;
    EXPECT_EQ(isOn(), false);
}

TEST_F(DoNotDisturbTest, isOnWhileAScreenSaverIsActive)
{
    for (const char* desktop : {"freedesktop", "gnome", "cinnamon", "mate", "xfce"}) {
        const QString name = QStringLiteral("org.%1.ScreenSaver").arg(desktop);
        FakeLock lock{session.other(), name, '/' + QString{name}.replace('.', '/')};
        EXPECT_EQ(isOn(), true) << desktop;
        lock.isLocked = false;
        EXPECT_EQ(isOn(), false) << desktop;
    }
}

TEST_F(DoNotDisturbTest, isOnWhileNotificationsAreInhibited)
{
    test::FakeNotificationService service{session.other()};
    service.isInhibited = true;
    EXPECT_EQ(isOn(), true);
}

TEST_F(DoNotDisturbTest, startsNoServiceToAskIt)
{
    session.bus().offer("org.freedesktop.ScreenSaver", "/bin/false");
    EXPECT_EQ(isOn(), false);
}

TEST_F(DoNotDisturbTest, isOffWithoutAnyBus)
{
    const QDBusConnection none{"none"};
    DoNotDisturb alone{none, none};
    std::optional<bool> answer;
    alone.ask([&](bool isOn) { answer = isOn; });
    EXPECT_FALSE(answer.has_value());
    EXPECT_TRUE(test::waitFor([&] { return answer.has_value(); }));
    EXPECT_EQ(answer, false);
}

TEST_F(DoNotDisturbTest, mayGoBeforeItIsAnswered)
{
    bool isAnswered = false;
    {
        DoNotDisturb brief{session.connection(), session.connection()};
        brief.ask([&](bool) { isAnswered = true; });
    }
    EXPECT_EQ(isOn(), false);
    EXPECT_FALSE(isAnswered);
}

} // namespace skyvane
