#include "host/desktop/companion.h"

#include "tests/session/journal.h"
#include "tests/session/private_bus.h"
#include "tests/session/wait_for.h"
#include "tests/support/scratch_folder.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <gmock/gmock.h>

#include <fstream>

namespace skyvane {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Writes down what it is asked over the bus.
class RunningCompanion : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        asked = message.arguments();
        return connection.send(message.createReply());
    }

    QVariantList asked;
};

/// A companion that writes down what it was started with.
class CompanionTest : public testing::Test {
protected:
    CompanionTest()
    {
        companion.environment.insert("XDG_ACTIVATION_TOKEN", "token");
        companion.environment.insert("DESKTOP_STARTUP_ID", "identity");
        makeProgram(companion.program,
            "echo \"$*|$XDG_ACTIVATION_TOKEN|$DESKTOP_STARTUP_ID\" >\"$0.new\" && mv \"$0.new\" \"$0.told\"");
    }

    static void makeProgram(const std::filesystem::path& program, const std::string& line)
    {
        std::ofstream{program} << "#!/bin/sh\n" << line << "\n";
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    }

    /// An opener of links that ends so.
    QString opener(const std::string& line) const
    {
        const auto program = folder.path() / "opener";
        makeProgram(program,
            "echo \"$*|$XDG_ACTIVATION_TOKEN|$DESKTOP_STARTUP_ID\" >\"$0.new\" && mv \"$0.new\" \"$0.told\"\n"
                + line);
        return QString::fromStdString(program.string());
    }

    /// What a program of the folder wrote down, once it has.
    std::string told(const char* name = "skyvane") const
    {
        std::string line;
        const auto file = folder.path() / (std::string{name} + ".told");
        EXPECT_TRUE(
            test::waitFor([&] { return static_cast<bool>(std::getline(std::ifstream{file}, line)); }));
        return line;
    }

    test::PrivateBus session;
    QDBusConnection bus = session.connection();
    test::ScratchFolder folder;
    Companion companion{
        .program = folder.path() / "skyvane", .environment = QProcessEnvironment::systemEnvironment()};
    const URL link = URL::parse("skyvane://aircraft/4ca7b3").value();
    const test::Journal journal;
};

/// A host in a sandbox, with a bus that starts the companion outside: a program that says so, takes its time,
/// and fails.
class SandboxedCompanionTest : public CompanionTest {
protected:
    SandboxedCompanionTest()
    {
        const auto outside = folder.path() / "outside";
        makeProgram(outside, "echo \"started $*\" >\"$0.told\"\nsleep 1\nexit 1");
        session.bus().offer("org.skyvane.Companion", QString::fromStdString(outside.string()));
        companion.outside = [this] { return bus; };
    }
};

} // namespace

TEST_F(SandboxedCompanionTest, theCompanionIsStartedByTheBusBeforeItIsTold)
{
    companion.start({"--settings"}, {});
    EXPECT_EQ(told("outside"), "started ");
    EXPECT_EQ(told(), "--settings||");
    EXPECT_THAT(test::Journal::lines(), IsEmpty());
}

TEST_F(SandboxedCompanionTest, aBusThatCannotStartItLeavesItToTheHost)
{
    session.bus().offer("org.skyvane.Companion", "/nowhere/skyvane");
    companion.startInPlaceOfHost();
    EXPECT_EQ(told(), "|token|identity");
}

TEST_F(CompanionTest, isStartedWithItsWordsAndWithoutTheHostsActivation)
{
    companion.start({"--settings"}, {});
    EXPECT_EQ(told(), "--settings||");
    EXPECT_THAT(test::Journal::lines(), IsEmpty());
}

TEST_F(CompanionTest, isStartedWithTheClicksActivation)
{
    companion.start({"--settings"}, "click_TIME7");
    EXPECT_EQ(told(), "--settings|click_TIME7|click_TIME7");
}

TEST_F(CompanionTest, inPlaceOfTheHostMayComeToTheFront)
{
    companion.startInPlaceOfHost();
    EXPECT_EQ(told(), "|token|identity");
}

TEST_F(CompanionTest, aMissingOneIsALineInTheJournal)
{
    companion.program = folder.path() / "missing";
    companion.startInPlaceOfHost();
    EXPECT_THAT(test::Journal::lines(),
        ElementsAre("the companion cannot be started: " + companion.program.string()));
}

TEST_F(CompanionTest, aLinkIsTheDesktopsToOpenWithTheClicksActivation)
{
    companion.openLink(bus, link, "click_TIME7", opener("exit 0"));
    EXPECT_EQ(told("opener"), "skyvane://aircraft/4ca7b3|click_TIME7|click_TIME7");
    const auto file = folder.path() / "skyvane.told";
    EXPECT_FALSE(
        test::waitFor([&] { return std::filesystem::exists(file); }, std::chrono::milliseconds{300}));
}

TEST_F(CompanionTest, aLinkThatTheDesktopCannotOpenIsTheCompanions)
{
    companion.openLink(bus, link, {}, opener("exit 3"));
    EXPECT_EQ(told(), "skyvane://aircraft/4ca7b3||");
}

TEST_F(CompanionTest, aLinkWithoutAnOpenerIsTheCompanions)
{
    companion.openLink(bus, link, "click_TIME7", "/nowhere/opener");
    EXPECT_EQ(told(), "skyvane://aircraft/4ca7b3|click_TIME7|click_TIME7");
}

TEST_F(CompanionTest, aLinkWithoutABusIsTheDesktopsToOpen)
{
    companion.openLink(QDBusConnection{"none"}, link, {}, opener("exit 0"));
    EXPECT_EQ(told("opener"), "skyvane://aircraft/4ca7b3||");
}

TEST_F(CompanionTest, aLinkGoesToTheCompanionThatRunsWithTheClicksActivation)
{
    QDBusConnection other = session.other();
    RunningCompanion running;
    ASSERT_TRUE(other.registerVirtualObject("/org/skyvane/Companion", &running));
    ASSERT_TRUE(other.registerService("org.skyvane.Companion"));
    companion.openLink(bus, link, "click_TIME7", opener("exit 0"));
    EXPECT_TRUE(test::waitFor([&] { return running.asked.size() == 2; }));
    EXPECT_EQ(running.asked.value(0).toStringList(), QStringList{"skyvane://aircraft/4ca7b3"});
    EXPECT_EQ(qdbus_cast<QVariantMap>(running.asked.value(1)).value("activation-token"), "click_TIME7");
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "opener.told"));
    other.unregisterService("org.skyvane.Companion");
}

} // namespace skyvane
