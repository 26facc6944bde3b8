#include "tests/host/desktop/desktop_fixture.h"

#include <gmock/gmock.h>

#include <sstream>

namespace skyvane {

namespace {

using testing::HasSubstr;
using testing::Not;

std::string fileText(const std::filesystem::path& file)
{
    std::ostringstream text;
    text << std::ifstream{file}.rdbuf();
    return text.str();
}

/// The host as it is installed, with a companion that writes down its environment.
class ToolkitLookTest : public DesktopTest {
protected:
    ToolkitLookTest()
    {
        std::filesystem::create_directories(program.parent_path());
        std::filesystem::copy_file(SKYVANE_HOST, program);
        putScript(folder.path() / "libexec/skyvane/skyvane-widgets",
            "exec " + extension.program().path.string() + "\n");
        putScript(program.parent_path() / "skyvane", "env >" + seen.string() + "\n");
        HostFile{hostFile}.write(
            {.widgets = {{
                 .id = 1,
                 .target = {.kind = "org.example.clock", .family = WidgetFamily::small},
                 .placement = {.screen = "screen", .corner = ScreenCorner::topRight, .inset = {24, 24}},
             }}});
        session.set("XDG_CONFIG_HOME", path(folder.path()));
    }

    /// With its widget on view, and with these variables.
    bool startInstalled(const QStringList& variables)
    {
        QProcessEnvironment environment = session.environment();
        for (const QString& variable : variables)
            environment.insert(variable.section('=', 0, 0), variable.section('=', 1));
        host.setProcessEnvironment(environment);
        host.start(path(program), QStringList{});
        return hasWindows(1) && test::waitFor([&] { return areManaged(); });
    }

    /// The libraries of the running host.
    std::string mapped() const { return fileText("/proc/" + std::to_string(host.processId()) + "/maps"); }

    std::filesystem::path program = folder.path() / "bin/skyvane-host";
    std::filesystem::path seen = folder.path() / "companion.env";

private:
    static void putScript(const std::filesystem::path& file, const std::string& text)
    {
        std::filesystem::create_directories(file.parent_path());
        std::ofstream{file} << "#!/bin/sh\n" << text;
        std::filesystem::permissions(file, std::filesystem::perms::owner_all);
    }
};

} // namespace

TEST_F(ToolkitLookTest, thisMachineHasAThemeToKeepOut)
{
    session.set("XDG_CURRENT_DESKTOP", "GNOME");
    ASSERT_TRUE(start(1));
    EXPECT_THAT(mapped(), HasSubstr("libgtk"));
}

TEST_F(ToolkitLookTest, noDesktopBringsAForeignToolkit)
{
    for (const char* desktop : {"XDG_CURRENT_DESKTOP=GNOME", "XDG_CURRENT_DESKTOP=ubuntu:GNOME",
             "XDG_CURRENT_DESKTOP=XFCE", "XDG_CURRENT_DESKTOP=MATE", "XDG_CURRENT_DESKTOP=X-Cinnamon",
             "XDG_CURRENT_DESKTOP=Unity", "XDG_CURRENT_DESKTOP=KDE", "DESKTOP_SESSION=gnome",
             "GNOME_DESKTOP_SESSION_ID=this-is-deprecated", "QT_QPA_PLATFORMTHEME=gtk3"}) {
        ASSERT_TRUE(startInstalled({desktop}));
        EXPECT_THAT(mapped(), Not(HasSubstr("libgtk"))) << desktop;
        EXPECT_THAT(mapped(), Not(HasSubstr("platformthemes"))) << desktop;
        end();
    }
}

TEST_F(ToolkitLookTest, aStyleIsNotAskedFor)
{
    ASSERT_TRUE(startInstalled({"QT_STYLE_OVERRIDE=nonsense"}));
    EXPECT_THAT(host.readAllStandardError().toStdString(), Not(HasSubstr("nonsense")));
}

TEST_F(ToolkitLookTest, theCompanionGetsTheUsersWholeEnvironment)
{
    const QStringList variables{"XDG_CURRENT_DESKTOP=GNOME", "DESKTOP_SESSION=gnome",
        "QT_QPA_PLATFORMTHEME=gtk3", "QT_STYLE_OVERRIDE=Fusion"};
    ASSERT_TRUE(startInstalled(variables));
    chooseFromMenu({1171, 100}, "s");
    EXPECT_TRUE(test::waitFor([&] {
        const std::string text = fileText(seen);
        return std::ranges::all_of(variables, [&](const QString& variable) {
            return text.find("\n" + variable.toStdString() + "\n") != std::string::npos;
        });
    }));
}

} // namespace skyvane
