#include "tests/host/desktop/desktop_fixture.h"

namespace skyvane {

TEST_F(DesktopTest, theFirstStartPlacesThreeWidgetsAsPartsOfTheDesktop)
{
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(isInFile(3));
    for (const std::string& window : windows) {
        for (const char* hint : {"_NET_WM_STATE_BELOW", "_NET_WM_STATE_SKIP_TASKBAR",
                 "_NET_WM_STATE_SKIP_PAGER", "_NET_WM_WINDOW_TYPE_DOCK",
                 "_NET_WM_DESKTOP(CARDINAL) = 4294967295", "_NET_FRAME_EXTENTS(CARDINAL) = 0, 0, 0, 0"}) {
            std::string hints;
            const bool isGiven = test::waitFor([&] {
                hints = session.run("xprop", {"-id", QString::fromStdString(window)});
                return hints.find(hint) != std::string::npos;
            });
            EXPECT_TRUE(isGiven) << hint << " is not in " << hints;
        }
    }
    const auto isTaken = [&](const QRect& frame) {
        return std::any_of(windows.begin(), windows.end(),
            [&](const std::string& window) { return session.frameOf(window) == frame; });
    };
    for (const QRect frame :
        {QRect{1086, 24, 170, 170}, QRect{892, 208, 364, 170}, QRect{892, 392, 364, 382}})
        EXPECT_TRUE(test::waitFor([&] { return isTaken(frame); })) << frame.y();
}

TEST_F(DesktopTest, withoutAConfigurationTheFirstStartAndOnlyThatWelcomes)
{
    std::filesystem::remove(configuration);
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(test::waitFor([&] { return host.bytesAvailable() > 0; }));
    EXPECT_EQ(host.readLine(), "welcome\n");
    end();
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(test::waitFor([&] { return !extension.events("widgets.timeline").empty(); }));
    EXPECT_EQ(host.readAllStandardOutput(), "");
}

TEST_F(DesktopTest, aDraggedWidgetIsBackInItsPlaceAfterARestart)
{
    ASSERT_TRUE(start(3));
    ASSERT_TRUE(isInFile(3));
    ASSERT_TRUE(isAt(smallWindow(), {1086, 24, 170, 170}));
    const auto before = HostFile{hostFile}.read();
    pointer({"mousemove", "1200", "60", "mousedown", "1", "mousemove", "1150", "90", "mousemove", "402",
        "503", "mouseup", "1"});
    EXPECT_TRUE(test::waitFor([&] { return HostFile{hostFile}.read() != before; }));
    const QRect dropped{288, 464, 170, 170};
    EXPECT_TRUE(isAt(smallWindow(), dropped));
    end();
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(isAt(smallWindow(), dropped));
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

TEST_F(DesktopTest, aChangedConfigurationRefreshesEveryWidget)
{
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(test::waitFor([&] { return extension.events("widgets.timelines").size() == 1; }));
    std::ofstream{configuration} << "{ }";
    EXPECT_TRUE(test::waitFor([&] { return extension.events("widgets.timelines").size() == 2; }));
    const auto asked = extension.events("widgets.timelines");
    // Five seconds; the extension may have heard the first late.
    EXPECT_GE(asked[1].at - asked[0].at, std::chrono::milliseconds{4000});
    for (const char* kind : {"nearest", "radar", "skyboard"})
        EXPECT_NE(asked[1].what.find(kind), std::string::npos) << kind;
}

TEST_F(DesktopTest, aDisplayThatGoesEndsItWithOneLine)
{
    host.setProcessEnvironment(session.environment());
    host.start(
        SKYVANE_DESKTOP_PROGRAM, {path(extension.program().path), path(hostFile), path(configuration)});
    ASSERT_TRUE(hasWindows(3));
    session.endServer();
    EXPECT_TRUE(test::waitFor([&] { return host.state() == QProcess::NotRunning; }));
    EXPECT_EQ(host.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(host.exitCode(), 1);
    EXPECT_EQ(host.readAllStandardError().count('\n'), 1);
    EXPECT_TRUE(HostFile{hostFile}.read());
}

} // namespace skyvane
