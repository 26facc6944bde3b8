#include "tests/host/desktop/desktop_fixture.h"
#include "tests/support/process_status.h"

#include <gmock/gmock.h>

#include <csignal>

namespace skyvane {

namespace {

class DesktopMenuTest : public DesktopTest {
protected:
    /// The window that offers a removed widget back; empty when there is none.
    std::string card() const
    {
        const auto window = session.run("xdotool", {"search", "--onlyvisible", "--name", " was removed\\.$"});
        return window.substr(0, window.find('\n'));
    }
};

} // namespace

TEST_F(DesktopMenuTest, theMenuRemovesAWidgetForGood)
{
    ASSERT_TRUE(start(3));
    chooseFromMenu({1171, 100}, "m");
    EXPECT_TRUE(isInFile(2));
    end();
    EXPECT_TRUE(start(2));
}

TEST_F(DesktopMenuTest, aChangeThatCannotBeSavedIsSaidByTheCommandThatMadeIt)
{
    ASSERT_TRUE(start(3));
    std::filesystem::remove(hostFile);
    std::filesystem::create_directories(hostFile / "in the way");
    const auto failed = [&](const QStringList& words) {
        QProcess command;
        command.setProcessEnvironment(session.environment());
        command.start(SKYVANE_HOST, words);
        command.waitForFinished();
        EXPECT_EQ(command.exitCode(), 1);
        EXPECT_EQ(command.readAllStandardOutput(), "");
        return command.readAllStandardError().toStdString();
    };
    EXPECT_TRUE(test::waitFor([&] {
        return failed({"add", "clock", "small"})
            .starts_with("skyvane-host: widget 4 is on the desktop, but cannot be remembered: its file");
    }));
    EXPECT_TRUE(hasWindows(4));
    EXPECT_THAT(failed({"remove", "4"}),
        testing::StartsWith("skyvane-host: widget 4 is off the desktop, but its file cannot be written"));
    EXPECT_TRUE(hasWindows(3));
    std::filesystem::remove_all(hostFile);
    EXPECT_EQ(command({"add", "clock", "small"}), "4\n");
}

TEST_F(DesktopMenuTest, aCardInTheRemovedWidgetsPlaceOffersItBack)
{
    ASSERT_TRUE(start(3));
    const auto before = HostFile{hostFile}.read();
    chooseFromMenu({1171, 100}, "m");
    EXPECT_TRUE(isInFile(2));
    ASSERT_TRUE(test::waitFor([&] { return !card().empty(); }));
    const QRect frame = session.frameOf(card());
    EXPECT_EQ(frame.topLeft(), QPoint(1086, 24));
    EXPECT_EQ(frame.width(), 170);
    pointer({"mousemove", QString::number(frame.center().x()), QString::number(frame.bottom() - 20), "click",
        "1"});
    EXPECT_TRUE(isInFile(3));
    EXPECT_EQ(HostFile{hostFile}.read()->widgets.back(), before->widgets.front());
    EXPECT_TRUE(hasWindows(3));
    EXPECT_TRUE(card().empty());
}

TEST_F(DesktopMenuTest, theOfferEndsAfterTenSeconds)
{
    ASSERT_TRUE(start(3));
    command({"remove", "1"});
    EXPECT_TRUE(test::waitFor([&] { return !card().empty(); }));
    EXPECT_TRUE(test::waitFor([&] { return card().empty(); }));
    command({"undo"});
    EXPECT_TRUE(isInFile(2));
    EXPECT_TRUE(hasWindows(2));
}

TEST_F(DesktopMenuTest, lockedWidgetsStayWhereTheyAreUntilTheyAreUnlocked)
{
    ASSERT_TRUE(start(3));
    ASSERT_TRUE(isAt(smallWindow(), {1086, 24, 170, 170}));
    EXPECT_TRUE(test::waitFor([&] { // A key that the menu hears twice unlocks again.
        chooseFromMenu({1171, 100}, "l");
        return HostFile{hostFile}.read()->isLocked;
    }));
    end();
    ASSERT_TRUE(start(3));
    const auto drag = [&] {
        pointer({"mousemove", "1200", "60", "mousedown", "1", "mousemove", "1150", "90", "mousemove", "402",
            "503", "mouseup", "1"});
    };
    EXPECT_TRUE(test::waitFor([&] {
        pointer({"mousemove", "1171", "60", "click", "1"});
        return host.bytesAvailable() > 0;
    }));
    drag();
    EXPECT_EQ(session.frameOf(smallWindow()), QRect(1086, 24, 170, 170));
    command({"unlock"});
    drag();
    EXPECT_TRUE(isAt(smallWindow(), {288, 464, 170, 170}));
}

TEST_F(DesktopMenuTest, anEmptyDesktopStartsWithTheGallery)
{
    HostFile{hostFile}.write(Arrangement{});
    ASSERT_TRUE(start(1));
    EXPECT_EQ(gallery(), windows.front());
    EXPECT_TRUE(test::waitFor([&] { return extension.events("widgets.snapshot").size() >= 3; }));
}

TEST_F(DesktopMenuTest, theGalleryIsShownWhenTheBusAsks)
{
    ASSERT_TRUE(start(3));
    session.run("dbus-send",
        {"--session", "--print-reply", "--dest=org.skyvane.Host", "/org/skyvane/Host",
            "org.skyvane.Host.ShowGallery"});
    EXPECT_FALSE(gallery().empty());
}

TEST_F(DesktopMenuTest, theGalleryAddsAWidget)
{
    ASSERT_TRUE(start(3));
    chooseFromMenu({1171, 100}, "a");
    const QString window = QString::fromStdString(gallery());
    EXPECT_TRUE(test::waitFor([&] {
        pointer({"windowactivate", window, "mousemove", "--window", window, "60", "120", "click", "1"});
        const auto widgets = HostFile{hostFile}.read();
        return widgets && widgets->widgets.size() > 3;
    }));
    EXPECT_EQ(HostFile{hostFile}.read()->widgets.at(3).target,
        (WidgetTarget{.kind = "org.example.clock", .family = WidgetFamily::small}));
}

TEST_F(DesktopMenuTest, theGalleryStandsAboveTheWidgets)
{
    ASSERT_TRUE(start(3));
    chooseFromMenu({1171, 100}, "a");
    const unsigned long window = std::stoul(gallery());
    EXPECT_TRUE(test::waitFor([&] {
        const auto stacking = session.stacking();
        return stacking.size() == 4 && stacking.back() == window;
    }));
}

TEST_F(DesktopMenuTest, aSampleDraggedOutOfTheGalleryIsAWidgetWhereItWasDropped)
{
    ASSERT_TRUE(start(3));
    chooseFromMenu({1171, 100}, "a");
    const std::string window = gallery();
    ASSERT_TRUE(test::waitFor([&] { return extension.events("widgets.snapshot").size() >= 3; }));
    ASSERT_TRUE(test::waitFor([&] {
        pointer({"windowmove", QString::fromStdString(window), "400", "200"});
        return session.frameOf(window).width() == 640 && session.frameOf(window).x() >= 400;
    }));
    const QRect frame = session.frameOf(window);
    const auto place = [&](int x, int y) {
        return QStringList{"mousemove", QString::number(x), QString::number(y)};
    };
    EXPECT_TRUE(test::waitFor([&] {
        pointer(place(frame.x() + 60, frame.y() + 120) + QStringList{"mousedown", "1"}
            + place(frame.x() + 40, frame.y() + 120) + place(200, 620) + place(191, 627)
            + QStringList{"mouseup", "1"});
        const auto widgets = HostFile{hostFile}.read();
        return widgets && widgets->widgets.size() > 3;
    }));
    const PlacedWidget widget = HostFile{hostFile}.read()->widgets.at(3);
    EXPECT_EQ(widget.target.family, WidgetFamily::small);
    EXPECT_EQ(widget.placement.corner, ScreenCorner::bottomLeft);
    EXPECT_LT((widget.placement.inset - QPoint{140, 160}).manhattanLength(), 80);
    EXPECT_EQ(widget.placement.inset.x() % 8, 0);
}

TEST_F(DesktopMenuTest, theMenuOpensTheSettings)
{
    ASSERT_TRUE(start(3));
    chooseFromMenu({1171, 100}, "s");
    EXPECT_TRUE(test::waitFor([&] { return host.bytesAvailable() > 0; }));
    EXPECT_EQ(host.readLine(), "settings\n");
}

TEST_F(DesktopMenuTest, theMenuQuits)
{
    ASSERT_TRUE(start(3));
    chooseFromMenu({1171, 100}, "q");
    EXPECT_TRUE(test::waitFor([&] { return host.state() == QProcess::NotRunning; }));
    EXPECT_EQ(host.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(host.exitCode(), 0);
}

TEST_F(DesktopMenuTest, aSignalToEndIsHeededAndNoStoppedExtensionSurvivesIt)
{
    ASSERT_TRUE(start(3));
    const auto children
        = [this] { return test::ProcessStatus::children(static_cast<pid_t>(host.processId())); };
    ASSERT_TRUE(test::waitFor([&] { return children().size() == 1; }));
    const pid_t stopped = children().front();
    kill(stopped, SIGSTOP);
    host.terminate();
    EXPECT_TRUE(test::waitFor([&] { return host.state() == QProcess::NotRunning; }));
    EXPECT_EQ(host.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(host.exitCode(), 0);
    EXPECT_EQ(kill(stopped, 0), -1);
}

TEST_F(DesktopMenuTest, commandsReachTheRunningHost)
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
    EXPECT_TRUE(isInFile(3));
    command({"undo"});
    EXPECT_TRUE(isInFile(4));
    EXPECT_TRUE(hasWindows(4));
    command({"remove", "1"});
    EXPECT_TRUE(isInFile(3));
    command({"lock"});
    EXPECT_TRUE(HostFile{hostFile}.read()->isLocked);
    EXPECT_EQ(command({"list", "--screens"}), "screen\n");
    command({"move", "3", "nowhere"});
    const auto before = HostFile{hostFile}.read();
    command({"move", "3", "screen"});
    EXPECT_NE(HostFile{hostFile}.read(), before);
    EXPECT_THAT(HostFile{hostFile}.read()->widgets.back().target,
        (WidgetTarget{.kind = "org.example.moon", .family = WidgetFamily::large}));
    const std::size_t asked = extension.events("widgets.timelines").size();
    command({"refresh"});
    EXPECT_TRUE(test::waitFor([&] { return extension.events("widgets.timelines").size() > asked; }));
    command({"quit"});
    EXPECT_TRUE(test::waitFor([&] { return host.state() == QProcess::NotRunning; }));
    EXPECT_EQ(host.exitCode(), 0);
}

TEST_F(DesktopMenuTest, aSecondStartShowsTheGalleryOfTheFirst)
{
    ASSERT_TRUE(start(3));
    session.run(SKYVANE_DESKTOP_PROGRAM, {"/nowhere/extension", "/nowhere/host.json", "/nowhere/config"});
    EXPECT_TRUE(hasWindows(4));
    EXPECT_FALSE(gallery().empty());
}

} // namespace skyvane
