#include "companion/app/command_line.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using testing::HasSubstr;

CommandLine read(const std::vector<std::string>& words)
{
    return std::get<CommandLine>(readCommandLine(words));
}

Printed printed(const std::vector<std::string>& words)
{
    return std::get<Printed>(readCommandLine(words));
}

} // namespace

TEST(CompanionCommandLine, aStartIsReadFromItsWords)
{
    EXPECT_EQ(read({}), CommandLine{});
    EXPECT_EQ(read({"--settings"}), (CommandLine{.showsSettings = true}));
    EXPECT_EQ(read({"--alerts"}), (CommandLine{.showsAlerts = true}));
    EXPECT_EQ(read({"--service"}), (CommandLine{.isService = true}));
    EXPECT_EQ(read({"skyvane://open"}), (CommandLine{.link = "skyvane://open"}));
    EXPECT_EQ(read({"--", "--odd"}), (CommandLine{.link = "--odd"}));
    EXPECT_EQ(read({""}), (CommandLine{.link = ""}));
}

TEST(CompanionCommandLine, helpAndVersionArePrinted)
{
    EXPECT_FALSE(printed({"--help"}).isError);
    EXPECT_THAT(printed({"--help"}).text, testing::StartsWith("usage: skyvane "));
    EXPECT_FALSE(printed({"--version"}).isError);
    EXPECT_THAT(printed({"--version"}).text, testing::MatchesRegex("skyvane [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST(CompanionCommandLine, aMistakeNamesItsOffender)
{
    EXPECT_TRUE(printed({"--setings"}).isError);
    EXPECT_THAT(printed({"--setings"}).text, HasSubstr("unknown option \"--setings\""));
    EXPECT_THAT(printed({"-x"}).text, HasSubstr("\"-x\""));
    EXPECT_THAT(printed({"--\x1b[31mx\u009b\u202e\n"}).text, HasSubstr("\"-- [31mx  \"\nusage"));
    EXPECT_THAT(printed({"skyvane://open", "two"}).text, HasSubstr("\"two\" is a second one"));
    EXPECT_THAT(
        printed({"--settings", "skyvane://open"}).text, HasSubstr("\"skyvane://open\" goes with no option"));
}

} // namespace skyvane
