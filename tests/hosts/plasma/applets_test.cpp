#include "hosts/plasma/applets.h"

#include "desk/bus/names.h"
#include "tests/host/extension/fake_extension.h"
#include "tests/session/private_bus.h"
#include "tests/session/wait_for.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <gtest/gtest.h>

#include <fstream>
#include <vector>

namespace skyvane {

namespace {

constexpr Size smallSize{.width = 170, .height = 170};
constexpr Size mediumSize{.width = 364, .height = 200};

/// Applets of a shell on a bus of the test's.
class AppletsTest : public testing::Test {
protected:
    /// What an applet was last told.
    struct Seen {
        int contents = 0;
        bool isOff = false;
    };

    AppletsTest() { std::ofstream{folder.path() / "widget-config.json"} << "{}"; }

    std::unique_ptr<Applets> shell(bool areShown) const
    {
        return std::make_unique<Applets>(extension.program(),
            DesktopSetup{
                .hostFile = {},
                .configuration = folder.path() / "widget-config.json",
                .open = [](const URL&, const QString&) {},
                .welcome = [] {},
                .settings = [](const QString&) {},
            },
            session.connection(), areShown);
    }

    static Applets::Show into(Seen& seen)
    {
        return [&seen](const ShownEntry* content) {
            seen.isOff = content == nullptr;
            seen.contents += content != nullptr ? 1 : 0;
        };
    }

    /// As the companion, or another host, calls it.
    void call(const QString& name, const QString& method) const
    {
        QDBusConnection other = session.other();
        other.send(QDBusMessage::createMethodCall(name, BusName::path(name), name, method));
    }

    bool hasOwner(const QString& name) const
    {
        return session.connection().interface()->isServiceRegistered(name).value();
    }

    std::size_t asked() const { return extension.events("widgets.timelines").size(); }

    test::PrivateBus session;
    test::ScratchFolder folder;
    test::FakeExtension extension{"linked"};
};

} // namespace

TEST_F(AppletsTest, allOfAShellShareOneExtensionAndOneQuestion)
{
    const auto applets = shell(/*areShown=*/true);
    std::array<Seen, 3> seen;
    for (Seen& one : seen)
        applets->add("org.example.clock", smallSize, into(one));
    EXPECT_TRUE(test::waitFor([&] { return asked() == 1 && seen[0].contents > 1 && seen[2].contents > 1; }));
    EXPECT_EQ(extension.events("start").size(), 1U);
    EXPECT_EQ(asked(), 1U);
}

TEST_F(AppletsTest, anotherSizeIsAnotherFamilyAndAnotherPlaceIsNot)
{
    const auto applets = shell(/*areShown=*/true);
    Seen seen;
    const int applet = applets->add("org.example.clock", smallSize, into(seen));
    EXPECT_TRUE(test::waitFor([&] { return asked() == 1 && seen.contents > 1; }));
    const auto placeholders = [&] { return extension.events("widgets.placeholder").size(); };
    EXPECT_EQ(placeholders(), 1U);
    applets->resize(applet, {.width = 171, .height = 175});
    applets->resize(applet, mediumSize);
    EXPECT_TRUE(test::waitFor([&] { return placeholders() == 2; }));
    EXPECT_FALSE(extension.events("\"family\":\"medium\"").empty());
}

TEST_F(AppletsTest, theSwitchOfTheCompanionTurnsThemOffAndAnotherHostsStartOn)
{
    const auto applets = shell(/*areShown=*/true);
    Seen seen;
    applets->add("org.example.clock", smallSize, into(seen));
    EXPECT_TRUE(hasOwner(BusName::host()));
    EXPECT_TRUE(test::waitFor([&] { return seen.contents > 0; }));
    call(BusName::host(), "Quit");
    EXPECT_TRUE(test::waitFor([&] { return seen.isOff && !hasOwner(BusName::host()); }));
    EXPECT_TRUE(hasOwner(BusName::shell()));
    call(BusName::shell(), "Start");
    EXPECT_TRUE(test::waitFor([&] { return !seen.isOff && hasOwner(BusName::host()); }));
}

TEST_F(AppletsTest, thoseOfAUserWhoTurnedThemOffAskNothingUntilTheyAreStarted)
{
    const auto applets = shell(/*areShown=*/false);
    Seen seen;
    applets->add("org.example.clock", smallSize, into(seen));
    EXPECT_TRUE(seen.isOff);
    EXPECT_FALSE(hasOwner(BusName::host()));
    EXPECT_TRUE(test::waitFor([&] { return extension.events("widgets.list").size() == 1; }));
    call(BusName::shell(), "Start");
    EXPECT_TRUE(test::waitFor([&] { return seen.contents > 0; }));
}

TEST_F(AppletsTest, aHostThatRunsAlreadyIsAskedToEnd)
{
    QDBusConnection other = session.other();
    ASSERT_TRUE(other.registerService(BusName::host()));
    struct OtherHost : QDBusVirtualObject {
        QString introspect(const QString&) const override { return {}; }
        bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
        {
            QDBusConnection bus = connection;
            return message.member() == "Quit" && bus.unregisterService(BusName::host());
        }
    } otherHost;
    other.registerVirtualObject(BusName::path(BusName::host()), &otherHost);
    const auto applets = shell(/*areShown=*/true);
    const auto isOurs = [&] {
        return session.connection().interface()->serviceOwner(BusName::host()).value()
            == session.connection().baseService();
    };
    EXPECT_TRUE(test::waitFor(isOurs));
    other.unregisterObject(BusName::path(BusName::host()));
}

TEST_F(AppletsTest, withTheLastAppletTheirNamesAreFree)
{
    shell(/*areShown=*/true).reset();
    EXPECT_FALSE(hasOwner(BusName::shell()));
    EXPECT_FALSE(hasOwner(BusName::host()));
}

} // namespace skyvane
