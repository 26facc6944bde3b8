#include "tests/host/desktop/desktop_fixture.h"

#include <csignal>

namespace skyvane {

namespace {

/// The host as it is installed, under its supervisor.
class SupervisedHostTest : public DesktopTest {
protected:
    SupervisedHostTest()
    {
        std::filesystem::create_directories(program.parent_path());
        std::filesystem::copy_file(SKYVANE_HOST, program);
        const auto widgets = folder.path() / "libexec/skyvane/skyvane-widgets";
        std::filesystem::create_directories(widgets.parent_path());
        std::ofstream{widgets} << "#!/bin/sh\nexec " << extension.program().path.string() << "\n";
        std::filesystem::permissions(widgets, std::filesystem::perms::owner_all);
        HostFile{hostFile}.write(
            {.widgets = {{
                 .id = 1,
                 .target = {.kind = "org.example.clock", .family = WidgetFamily::small},
                 .placement = {.screen = "screen", .corner = ScreenCorner::topRight, .inset = {24, 24}},
             }}});
        session.set("XDG_CONFIG_HOME", path(folder.path()));
    }

    /// The process that shows the widget, other than this one, once it does.
    int shownBy(int other = 0)
    {
        int process = 0;
        EXPECT_TRUE(test::waitFor([&] {
            const std::string task = std::to_string(host.processId());
            process = 0;
            std::ifstream{"/proc/" + task + "/task/" + task + "/children"} >> process;
            return process != 0 && process != other && session.windowsOf(process).size() == 1;
        }));
        return process;
    }

    std::filesystem::path program = folder.path() / "bin/skyvane-host";
};

} // namespace

TEST_F(SupervisedHostTest, afterACrashTheWidgetsAreBackAndAQuitEndsAll)
{
    host.setProcessEnvironment(session.environment());
    host.start(path(program), {"--supervise"});
    const int first = shownBy();
    ASSERT_GT(first, 0);
    ::kill(first, SIGKILL);
    EXPECT_GT(shownBy(first), 0);
    command({"quit"});
    EXPECT_TRUE(test::waitFor([&] { return host.state() == QProcess::NotRunning; }));
    EXPECT_EQ(host.exitCode(), 0);
}

TEST_F(SupervisedHostTest, theSupervisorsEndIsTheHosts)
{
    host.setProcessEnvironment(session.environment());
    host.start(path(program), {"--supervise"});
    ASSERT_GT(shownBy(), 0);
    host.terminate();
    EXPECT_TRUE(test::waitFor([&] { return host.state() == QProcess::NotRunning; }));
    EXPECT_TRUE(test::waitFor([&] { return command({"list", "--placed"}).empty(); }));
}

TEST_F(SupervisedHostTest, withoutADisplayItEndsAtOnceWithOneLine)
{
    session.set("DISPLAY", ":59999");
    host.setProcessEnvironment(session.environment());
    host.start(path(program), {"--supervise"});
    EXPECT_TRUE(test::waitFor([&] { return host.state() == QProcess::NotRunning; }));
    EXPECT_EQ(host.exitCode(), 1);
    EXPECT_EQ(host.readAllStandardError().count('\n'), 1);
}

} // namespace skyvane
