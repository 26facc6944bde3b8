#include "host/host_file.h"
#include "tests/host/fake_extension.h"
#include "tests/host/wait_for.h"
#include "tests/host/x_session.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using testing::HasSubstr;

/// The desktop as a process of an X session; a test may end and start it again.
class DesktopTest : public testing::Test {
protected:
    ~DesktopTest() override { end(); }

    /// Started, with so many windows.
    bool start(std::size_t count)
    {
        host.setProcessEnvironment(session.environment());
        host.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        host.start(SKYVANE_DESKTOP_PROGRAM,
            {path(extension.program().path), path(hostFile), path(folder.path() / "widget-config.json")});
        return hasWindows(count);
    }

    void end()
    {
        host.terminate();
        host.waitForFinished();
    }

    bool hasWindows(std::size_t count)
    {
        return test::waitFor([&] {
            windows = session.windowsOf(host.processId());
            return windows.size() == count;
        });
    }

    bool isInFile(std::size_t count) const
    {
        return test::waitFor([&] {
            const auto widgets = HostFile{hostFile}.read();
            return widgets && widgets->size() == count;
        });
    }

    void pointer(const QStringList& words) const { session.run("xdotool", words); }

    /// The right button there, then these keys.
    void chooseFromMenu(QPoint place, const QString& key) const
    {
        pointer({"mousemove", QString::number(place.x()), QString::number(place.y()), "click", "3"});
        EXPECT_TRUE(
            test::waitFor([&] { return session.windowsOf(host.processId()).size() > windows.size(); }));
        pointer({"key", key});
    }

    /// The only small widget.
    std::string smallWindow() const
    {
        for (const std::string& window : windows) {
            if (session.frameOf(window).size() == QSize{170, 170})
                return window;
        }
        return {};
    }

    /// What a command of the host prints in this session.
    std::string command(const QStringList& words) const { return session.run(SKYVANE_HOST, words); }

    static QString path(const std::filesystem::path& file) { return QString::fromStdString(file.string()); }

    test::XSession session;
    test::ScratchFolder folder;
    test::FakeExtension extension{"linked"};
    std::filesystem::path hostFile = folder.path() / "skyvane/host.json";
    QProcess host;
    std::vector<std::string> windows;
};

} // namespace

TEST_F(DesktopTest, theFirstStartPlacesThreeWidgetsAsPartsOfTheDesktop)
{
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(isInFile(3));
    std::vector<QRect> frames;
    for (const std::string& window : windows) {
        const auto hints = session.run("xprop", {"-id", QString::fromStdString(window)});
        for (const char* state : {"_BELOW", "_SKIP_TASKBAR", "_SKIP_PAGER"})
            EXPECT_THAT(hints, HasSubstr(std::string{"_NET_WM_STATE"} + state));
        EXPECT_THAT(hints, HasSubstr("_NET_WM_WINDOW_TYPE_UTILITY"));
        EXPECT_THAT(hints, HasSubstr("_NET_WM_DESKTOP(CARDINAL) = 4294967295"));
        EXPECT_THAT(hints, HasSubstr("_NET_FRAME_EXTENTS(CARDINAL) = 0, 0, 0, 0"));
        frames.push_back(session.frameOf(window));
    }
    EXPECT_THAT(frames,
        testing::UnorderedElementsAre(
            QRect(1086, 24, 170, 170), QRect(892, 208, 364, 170), QRect(892, 392, 364, 382)));
}

TEST_F(DesktopTest, widgetsStayBelowAnOrdinaryWindow)
{
    QProcess ordinary;
    ordinary.setProcessEnvironment(session.environment());
    ordinary.setStandardOutputFile(QProcess::nullDevice());
    ordinary.start("xev", {"-geometry", "600x600+600+100"});
    ordinary.waitForStarted();
    EXPECT_TRUE(test::waitFor([&] { return session.stacking().size() == 1; }));
    const auto first = session.stacking();
    ASSERT_EQ(first.size(), 1U);
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(test::waitFor([&] { return session.stacking().size() == 4; }));
    EXPECT_EQ(session.stacking().back(), first.front());
    ordinary.terminate();
    ordinary.waitForFinished();
}

TEST_F(DesktopTest, aDraggedWidgetIsBackInItsPlaceAfterARestart)
{
    ASSERT_TRUE(start(3));
    const auto before = HostFile{hostFile}.read();
    pointer({"mousemove", "1200", "60", "mousedown", "1", "mousemove", "1150", "90", "mousemove", "402",
        "503", "mouseup", "1"});
    EXPECT_TRUE(test::waitFor([&] { return HostFile{hostFile}.read() != before; }));
    const QRect dropped = session.frameOf(smallWindow());
    EXPECT_EQ(dropped, QRect(288, 464, 170, 170));
    end();
    ASSERT_TRUE(start(3));
    EXPECT_EQ(session.frameOf(smallWindow()), dropped);
    EXPECT_EQ(host.readAllStandardOutput(), "");
}

TEST_F(DesktopTest, aTapOnTheSecondRowOpensItsAircraft)
{
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(test::waitFor([&] {
        pointer({"mousemove", "1171", "150", "click", "1"});
        return host.bytesAvailable() > 0;
    }));
    EXPECT_EQ(host.readLine(), "skyvane://aircraft/second\n");
}

TEST_F(DesktopTest, theMenuRemovesAWidgetForGood)
{
    ASSERT_TRUE(start(3));
    chooseFromMenu({1171, 100}, "m");
    EXPECT_TRUE(hasWindows(2));
    EXPECT_TRUE(isInFile(2));
    end();
    EXPECT_TRUE(start(2));
}

TEST_F(DesktopTest, theGalleryAddsAWidget)
{
    ASSERT_TRUE(start(3));
    chooseFromMenu({1171, 100}, "a");
    EXPECT_TRUE(test::waitFor([&] {
        return !session.run("xdotool", {"search", "--onlyvisible", "--name", "^Add Widgets$"}).empty();
    }));
    EXPECT_TRUE(test::waitFor([&] {
        pointer({"search", "--onlyvisible", "--name", "^Add Widgets$", "windowactivate", "--sync",
            "mousemove", "--window", "%1", "60", "120", "click", "1"});
        const auto widgets = HostFile{hostFile}.read();
        return widgets && widgets->size() > 3;
    }));
    EXPECT_EQ(HostFile{hostFile}.read()->at(3).target,
        (WidgetTarget{.kind = "org.example.clock", .family = ContainerFamily::small}));
}

TEST_F(DesktopTest, theMenuQuits)
{
    ASSERT_TRUE(start(3));
    chooseFromMenu({1171, 100}, "q");
    EXPECT_TRUE(test::waitFor([&] { return host.state() == QProcess::NotRunning; }));
    EXPECT_EQ(host.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(host.exitCode(), 0);
}

TEST_F(DesktopTest, commandsReachTheRunningHost)
{
    EXPECT_EQ(command({"list", "--placed"}), "");
    ASSERT_TRUE(start(3));
    EXPECT_EQ(command({"list", "--placed"}),
        "1\torg.skyvane.widgets.nearest\tsmall\n2\torg.skyvane.widgets.radar\tmedium\n"
        "3\torg.skyvane.widgets.skyboard\tlarge\n");
    EXPECT_TRUE(test::waitFor([&] { return command({"add", "moon", "large"}) == "4\n"; }));
    EXPECT_TRUE(hasWindows(4));
    EXPECT_EQ(command({"add", "moon", "small"}), "");
    EXPECT_EQ(command({"remove", "1"}), "");
    EXPECT_TRUE(hasWindows(3));
    EXPECT_THAT(HostFile{hostFile}.read()->back().target,
        (WidgetTarget{.kind = "org.example.moon", .family = ContainerFamily::large}));
    const std::size_t asked = extension.events("widgets.timeline").size();
    command({"refresh"});
    EXPECT_TRUE(
        test::waitFor([&] { return extension.events("widgets.timeline").size() >= asked + windows.size(); }));
    command({"quit"});
    EXPECT_TRUE(test::waitFor([&] { return host.state() == QProcess::NotRunning; }));
    EXPECT_EQ(host.exitCode(), 0);
}

TEST_F(DesktopTest, aSecondStartShowsTheGalleryOfTheFirst)
{
    ASSERT_TRUE(start(3));
    session.run(SKYVANE_DESKTOP_PROGRAM, {"/nowhere/extension", "/nowhere/host.json", "/nowhere/config"});
    EXPECT_TRUE(hasWindows(4));
    EXPECT_FALSE(session.run("xdotool", {"search", "--onlyvisible", "--name", "^Add Widgets$"}).empty());
}

TEST_F(DesktopTest, aChangedConfigurationRefreshesEveryWidget)
{
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(test::waitFor([&] { return extension.events("widgets.timeline").size() == 3; }));
    std::ofstream{folder.path() / "widget-config.json"} << "{}";
    EXPECT_TRUE(test::waitFor([&] { return extension.events("widgets.timeline").size() == 6; }));
    const auto asked = extension.events("widgets.timeline");
    EXPECT_GT(asked[5].at - asked[3].at, std::chrono::milliseconds{1800});
}

} // namespace skyvane
