#include "desk/autostart.h"
#include "platform/files/files.h"
#include "tests/support/scratch_folder.h"

#include <gmock/gmock.h>

#include <fstream>

namespace skyvane {

namespace {

using testing::HasSubstr;
using testing::Optional;

class AutostartTest : public testing::Test {
protected:
    void writeSystemWide(const std::string& lines) const
    {
        std::filesystem::create_directories(folders.systemWide.front());
        std::ofstream{folders.systemWide.front() / "skyvane-host.desktop"} << "[Desktop Entry]\n" + lines;
    }

    std::optional<std::string> own() const { return Files::read(folders.own / "skyvane-host.desktop", 4096); }

    test::ScratchFolder scratch;
    AutostartFolders folders{
        .own = scratch.path() / "config/autostart", .systemWide = {scratch.path() / "xdg"}};
};

} // namespace

TEST_F(AutostartTest, onWritesAnEntryOfTheUsersOwn)
{
    EXPECT_TRUE(Autostart::turnOn(folders, "/opt/sky vane/bin/skyvane-host"));
    EXPECT_THAT(own(), Optional(HasSubstr("[Desktop Entry]\nType=Application\n")));
    EXPECT_THAT(own(), Optional(HasSubstr("\nTryExec=/opt/sky vane/bin/skyvane-host\n")));
    EXPECT_THAT(own(), Optional(HasSubstr("\nExec=\"/opt/sky vane/bin/skyvane-host\" --supervise\n")));
    EXPECT_THAT(own(), Optional(testing::Not(HasSubstr("Hidden"))));
}

TEST_F(AutostartTest, aBackslashOfThePathIsDoubledInBothKeys)
{
    EXPECT_TRUE(Autostart::turnOn(folders, "/a\\b"));
    EXPECT_THAT(own(), Optional(HasSubstr("\nTryExec=/a\\\\b\nExec=\"/a\\\\\\\\b\"")));
}

TEST_F(AutostartTest, itIsOnWhereAnEntryOfTheUsersOrTheSystemsSaysSo)
{
    EXPECT_FALSE(Autostart::isOn(folders));
    Autostart::turnOn(folders, "/bin/skyvane-host");
    EXPECT_TRUE(Autostart::isOn(folders));
    Autostart::turnOff(folders);
    EXPECT_FALSE(Autostart::isOn(folders));
    writeSystemWide("Exec=skyvane-host\n");
    EXPECT_TRUE(Autostart::isOn(folders));
    Autostart::turnOff(folders);
    EXPECT_FALSE(Autostart::isOn(folders));
}

TEST_F(AutostartTest, offRemovesIt)
{
    EXPECT_TRUE(Autostart::turnOff(folders));
    Autostart::turnOn(folders, "/bin/skyvane-host");
    EXPECT_TRUE(Autostart::turnOff(folders));
    EXPECT_EQ(own(), std::nullopt);
}

TEST_F(AutostartTest, aSystemWideEntryIsHiddenAndShownAgain)
{
    writeSystemWide("Exec=skyvane-host\n");
    EXPECT_TRUE(Autostart::turnOff(folders));
    EXPECT_THAT(own(), Optional(HasSubstr("\nHidden=true\n")));
    EXPECT_TRUE(Autostart::turnOn(folders, "/bin/skyvane-host"));
    EXPECT_EQ(own(), std::nullopt);
}

TEST_F(AutostartTest, aSystemWideEntryThatIsHiddenDoesNotCount)
{
    writeSystemWide("Exec=skyvane-host\nHidden = true\n");
    EXPECT_TRUE(Autostart::turnOn(folders, "/bin/skyvane-host"));
    EXPECT_THAT(own(), Optional(HasSubstr("Exec=")));
}

TEST_F(AutostartTest, aShellThatStartsTheWidgetsItselfIsKeptFromItByAHiddenEntry)
{
    folders.isShellThere = true;
    EXPECT_TRUE(Autostart::isOn(folders));
    EXPECT_TRUE(Autostart::turnOff(folders));
    EXPECT_THAT(own(), Optional(HasSubstr("\nHidden=true\n")));
    EXPECT_FALSE(Autostart::isOn(folders));
    EXPECT_TRUE(Autostart::turnOn(folders, "/bin/skyvane-host"));
    EXPECT_EQ(own(), std::nullopt);
    EXPECT_TRUE(Autostart::isOn(folders));
}

TEST_F(AutostartTest, whatCannotBeWrittenIsSaid)
{
    std::ofstream{scratch.path() / "config"} << "a file where a folder belongs";
    EXPECT_FALSE(Autostart::turnOn(folders, "/bin/skyvane-host"));
}

TEST_F(AutostartTest, theProgramsPathIsQuotedAsEntriesWantIt)
{
    EXPECT_EQ(Autostart::execLine("/usr/bin/skyvane-host"), R"("/usr/bin/skyvane-host" --supervise)");
    EXPECT_EQ(Autostart::execLine(R"(/a"b$c`d)"), R"("/a\\"b\\$c\\`d" --supervise)");
    EXPECT_EQ(Autostart::execLine(R"(/a\b)"), R"("/a\\\\b" --supervise)");
    EXPECT_EQ(Autostart::execLine("/100%"), R"("/100%%" --supervise)");
}

} // namespace skyvane
