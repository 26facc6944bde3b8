#include "host/session/sleep_watch.h"

#include "tests/session/wait_for.h"
#include "tests/session/x_session.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <gtest/gtest.h>

namespace skyvane {

namespace {

/// The login manager's word on the bus.
void announce(QDBusConnection bus, bool isGoingToSleep)
{
    QDBusMessage signal = QDBusMessage::createSignal(
        "/org/freedesktop/login1", "org.freedesktop.login1.Manager", "PrepareForSleep");
    signal << isGoingToSleep;
    bus.send(signal);
}

} // namespace

TEST(SleepWatch, tellsOfTheWakingAndNotOfTheFallingAsleep)
{
    const test::XSession session;
    const QString address = session.environment().value("DBUS_SYSTEM_BUS_ADDRESS");
    {
        QDBusConnection manager = QDBusConnection::connectToBus(address, "manager");
        ASSERT_TRUE(manager.registerService("org.freedesktop.login1"));
        int woken = 0;
        QDBusConnection host = QDBusConnection::connectToBus(address, "host");
        const SleepWatch watch{host, [&] { ++woken; }};
        // Once this is answered the bus knows what the watch listens to.
        ASSERT_TRUE(host.interface()->isServiceRegistered("org.freedesktop.login1"));
        announce(manager, /*isGoingToSleep=*/true);
        EXPECT_FALSE(test::waitFor([&] { return woken > 0; }, std::chrono::milliseconds{200}));
        announce(manager, /*isGoingToSleep=*/false);
        EXPECT_TRUE(test::waitFor([&] { return woken == 1; }));
    }
    QDBusConnection::disconnectFromBus("manager");
    QDBusConnection::disconnectFromBus("host");
}

} // namespace skyvane
