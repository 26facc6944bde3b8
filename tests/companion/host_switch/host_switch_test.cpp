#include "companion/host_switch/host_control.h"
#include "companion/host_switch/host_switch.h"
#include "tests/session/private_bus.h"
#include "tests/session/wait_for.h"

#include <QCheckBox>
#include <QDBusConnectionInterface>
#include <QLabel>

#include <gmock/gmock.h>

namespace skyvane {

namespace {

class HostSwitchTest : public testing::Test {
protected:
    ~HostSwitchTest() override
    {
        control(SKYVANE_FAKE_HOST)->stop();
        EXPECT_TRUE(test::waitFor([&] { return !isHostThere(); }));
    }

    std::unique_ptr<HostControl> control(const char* program) const
    {
        auto host = std::make_unique<HostControl>(bus, QString::fromUtf8(program));
        test::waitFor([&] { return host->isRunning() == isHostThere(); });
        return host;
    }

    bool isHostThere() const { return bus.interface()->isServiceRegistered("org.skyvane.Host"); }
    bool isStartedWithSession() const { return exists(folders.own / "skyvane-host.desktop"); }

    test::PrivateBus session;
    QDBusConnection bus = session.connection();
    test::ScratchFolder scratch;
    AutostartFolders folders{.own = scratch.path() / "autostart", .systemWide = {}};
};

} // namespace

TEST_F(HostSwitchTest, onStartsTheHostAndOffEndsIt)
{
    const auto host = control(SKYVANE_FAKE_HOST);
    HostSwitch hostSwitch{*host, folders};
    auto* box = hostSwitch.findChild<QCheckBox*>();
    EXPECT_FALSE(box->isChecked());
    box->click();
    EXPECT_TRUE(test::waitFor([&] { return isHostThere() && host->isRunning(); }));
    EXPECT_TRUE(box->isChecked());
    EXPECT_TRUE(isStartedWithSession());
    box->click();
    EXPECT_TRUE(test::waitFor([&] { return !isHostThere() && !host->isRunning(); }));
    EXPECT_FALSE(box->isChecked());
    EXPECT_FALSE(isStartedWithSession());
}

TEST_F(HostSwitchTest, itFollowsAHostThatOthersStartAndEnd)
{
    const auto mine = control(SKYVANE_FAKE_HOST);
    HostSwitch hostSwitch{*mine, folders};
    const auto* box = hostSwitch.findChild<QCheckBox*>();
    const auto other = control(SKYVANE_FAKE_HOST);
    other->start();
    EXPECT_TRUE(test::waitFor([&] { return box->isChecked(); }));
    HostControl late{bus, SKYVANE_FAKE_HOST};
    EXPECT_TRUE(test::waitFor([&] { return late.isRunning(); }));
    other->stop();
    EXPECT_TRUE(test::waitFor([&] { return !box->isChecked(); }));
    EXPECT_FALSE(isStartedWithSession());
}

TEST_F(HostSwitchTest, aHostThatIsNotThereIsSaidToBeMissing)
{
    const auto host = control("/nowhere/skyvane-host");
    HostSwitch hostSwitch{*host, folders};
    auto* box = hostSwitch.findChild<QCheckBox*>();
    box->click();
    EXPECT_FALSE(box->isChecked());
    EXPECT_THAT(
        hostSwitch.findChild<QLabel*>()->text().toStdString(), testing::HasSubstr("/nowhere/skyvane-host"));
}

} // namespace skyvane
