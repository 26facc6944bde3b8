#include "companion/host_switch/host_control.h"
#include "companion/host_switch/host_switch.h"
#include "tests/session/private_bus.h"
#include "tests/session/wait_for.h"

#include <QCheckBox>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QLabel>
#include <QPushButton>

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
    bool hasGallery() const { return bus.interface()->isServiceRegistered("org.skyvane.Test.Gallery"); }
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

TEST_F(HostSwitchTest, whereAShellStartsTheWidgetsItselfOffKeepsItFromItAndOnDoesNot)
{
    ASSERT_TRUE(bus.registerService("org.skyvane.Shell"));
    const auto host = control(SKYVANE_FAKE_HOST);
    HostSwitch hostSwitch{*host, folders};
    const auto boxes = hostSwitch.findChildren<QCheckBox*>();
    EXPECT_TRUE(boxes[1]->isChecked());
    boxes[0]->click();
    EXPECT_TRUE(test::waitFor([&] { return host->isRunning(); }));
    EXPECT_FALSE(isStartedWithSession());
    boxes[0]->click();
    EXPECT_TRUE(test::waitFor([&] { return !host->isRunning(); }));
    EXPECT_FALSE(boxes[1]->isChecked());
    EXPECT_TRUE(isStartedWithSession()); // That is, the entry that hides.
    EXPECT_FALSE(Autostart::isOn({.own = folders.own, .systemWide = {}, .isShellThere = true}));
}

TEST_F(HostSwitchTest, aHostThatTheUserQuitsIsStillStartedAtLogInAndTheSwitchSaysBoth)
{
    const auto host = control(SKYVANE_FAKE_HOST);
    HostSwitch hostSwitch{*host, folders};
    const auto boxes = hostSwitch.findChildren<QCheckBox*>();
    ASSERT_EQ(boxes.size(), 2);
    boxes[0]->click();
    ASSERT_TRUE(test::waitFor([&] { return host->isRunning(); }));
    EXPECT_TRUE(boxes[1]->isChecked());
    control(SKYVANE_FAKE_HOST)->stop();
    EXPECT_TRUE(test::waitFor([&] { return !host->isRunning(); }));
    EXPECT_FALSE(boxes[0]->isChecked());
    EXPECT_TRUE(boxes[1]->isChecked());
    boxes[1]->click();
    EXPECT_FALSE(boxes[1]->isChecked());
    EXPECT_FALSE(isStartedWithSession());
    EXPECT_FALSE(boxes[0]->isChecked());
}

TEST_F(HostSwitchTest, whatStartsAtLogInIsReadAnewWhenTheSwitchIsShown)
{
    const auto host = control(SKYVANE_FAKE_HOST);
    HostSwitch hostSwitch{*host, folders};
    const auto boxes = hostSwitch.findChildren<QCheckBox*>();
    EXPECT_FALSE(boxes[1]->isChecked());
    Autostart::turnOn(folders, "/bin/skyvane-host");
    hostSwitch.show();
    EXPECT_TRUE(boxes[1]->isChecked());
    EXPECT_FALSE(boxes[0]->isChecked());
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
    const HostSwitch hostSwitch{*host, folders};
    auto* box = hostSwitch.findChild<QCheckBox*>();
    for (QAbstractButton* button : {static_cast<QAbstractButton*>(box),
             static_cast<QAbstractButton*>(hostSwitch.findChild<QPushButton*>())}) {
        auto* words = hostSwitch.findChild<QLabel*>();
        words->clear();
        button->click();
        EXPECT_FALSE(box->isChecked());
        EXPECT_THAT(words->text().toStdString(), testing::HasSubstr("/nowhere/skyvane-host"));
    }
}

TEST_F(HostSwitchTest, widgetsAreAddedInTheGalleryOfTheHostThatRuns)
{
    const auto host = control(SKYVANE_FAKE_HOST);
    host->start();
    ASSERT_TRUE(test::waitFor([&] { return host->isRunning(); }));
    HostSwitch hostSwitch{*host, folders};
    EXPECT_FALSE(hasGallery());
    hostSwitch.findChild<QPushButton*>()->click();
    EXPECT_TRUE(test::waitFor([&] { return hasGallery(); }));
    EXPECT_FALSE(isStartedWithSession());
}

TEST_F(HostSwitchTest, addingWidgetsTurnsThemOnFirst)
{
    const auto host = control(SKYVANE_FAKE_HOST);
    HostSwitch hostSwitch{*host, folders};
    hostSwitch.findChild<QPushButton*>()->click();
    EXPECT_TRUE(test::waitFor([&] { return hasGallery(); }));
    EXPECT_TRUE(hostSwitch.findChild<QCheckBox*>()->isChecked());
    EXPECT_TRUE(isStartedWithSession());
}

TEST_F(HostSwitchTest, turningWidgetsOnShowsNoGallery)
{
    const auto host = control(SKYVANE_FAKE_HOST);
    HostSwitch hostSwitch{*host, folders};
    hostSwitch.findChild<QCheckBox*>()->click();
    ASSERT_TRUE(test::waitFor([&] { return host->isRunning(); }));
    bus.call(QDBusMessage::createMethodCall( // Answered after whatever was asked before.
        "org.skyvane.Host", "/org/skyvane/Host", "org.skyvane.Host", "Nothing"));
    EXPECT_FALSE(hasGallery());
}

TEST_F(HostSwitchTest, aHostThatHasNoGalleryIsSaidNotToAnswer)
{
    QDBusConnection other = session.other();
    ASSERT_TRUE(other.registerService("org.skyvane.Host"));
    const auto host = control(SKYVANE_FAKE_HOST);
    HostSwitch hostSwitch{*host, folders};
    hostSwitch.findChild<QPushButton*>()->click();
    const auto* words = hostSwitch.findChild<QLabel*>();
    EXPECT_TRUE(test::waitFor([&] { return words->text() == "The widgets do not answer."; }));
    other.unregisterService("org.skyvane.Host");
}

} // namespace skyvane
