#include "host/commands/command_line.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using Words = std::vector<std::string>;

std::string refusal(const Words& words)
{
    try {
        parseCommandLine(words);
        return "accepted";
    } catch (const UsageError& error) {
        return error.what();
    }
}

} // namespace

TEST(CommandLine, aWidgetIsRenderedAsAPNGOfScaleOne)
{
    EXPECT_EQ(parseCommandLine({"render", "radar", "small"}),
        Command(RenderWords{.kind = "radar", .family = WidgetFamily::small}));
}

TEST(CommandLine, optionsStandAnywhere)
{
    const RenderWords expected{
        .kind = "radar",
        .family = WidgetFamily::large,
        .output = "a.SVG",
        .format = PictureFormat::svg,
        .scale = 1.5,
        .isSample = true,
    };
    EXPECT_EQ(
        parseCommandLine({"render", "--scale", "1.5", "radar", "--sample", "large", "--output", "a.SVG"}),
        Command(expected));
    EXPECT_EQ(parseCommandLine({"render", "radar", "large", "--output=a.SVG", "--sample", "--scale=1.5"}),
        Command(expected));
}

TEST(CommandLine, listHelpAndVersionStandAlone)
{
    EXPECT_EQ(parseCommandLine({"list"}), Command(ListWords{}));
    EXPECT_EQ(parseCommandLine({"--help"}), Command(HelpWords{}));
    EXPECT_EQ(parseCommandLine({"--version"}), Command(VersionWords{}));
    EXPECT_EQ(refusal({"list", "all"}), "\"list\" takes no more words");
}

TEST(CommandLine, theRunningHostIsToldByWords)
{
    EXPECT_EQ(parseCommandLine({"add", "radar", "medium"}),
        Command(AddWords{.kind = "radar", .family = WidgetFamily::medium}));
    EXPECT_EQ(parseCommandLine({"remove", "12"}), Command(RemoveWords{.widget = 12}));
    EXPECT_EQ(parseCommandLine({"list", "--placed"}), Command(PlacedWords{}));
    EXPECT_EQ(parseCommandLine({"refresh"}), Command(RefreshWords{}));
    EXPECT_EQ(parseCommandLine({"quit"}), Command(QuitWords{}));
    EXPECT_EQ(refusal({"add", "radar"}), "add takes a kind and a family, see skyvane-host --help");
    EXPECT_EQ(refusal({"remove"}), "remove takes a widget's number, see skyvane-host --help");
    for (const char* word : {"0", "-1", "1x", "", "99999999999"})
        EXPECT_THAT(refusal({"remove", word}), testing::StartsWith("a widget's number is")) << word;
    EXPECT_EQ(refusal({"refresh", "all"}), "\"refresh\" takes no more words");
}

TEST(CommandLine, aScaleIsANumberAboveZeroAndUpToEight)
{
    EXPECT_EQ(std::get<RenderWords>(parseCommandLine({"render", "radar", "small", "--scale", "8"})).scale, 8);
    for (const char* word : {"0", "-1", "8.01", "2x", "x2", "", "nan", "inf", "1,5", " 2"})
        EXPECT_THAT(refusal({"render", "radar", "small", "--scale", word}),
            testing::StartsWith("the scale is a number"))
            << word;
}

TEST(CommandLine, anOutputEndsInPNGOrSVG)
{
    for (const char* name : {"radar", "radar.jpg", ".png", "png", "a.png/", ""})
        EXPECT_THAT(refusal({"render", "radar", "small", "--output", name}),
            testing::StartsWith("the output's name must end in"))
            << name;
}

TEST(CommandLine, whatMakesNoSenseIsNamed)
{
    EXPECT_EQ(refusal({"draw"}), "unknown command \"draw\", see skyvane-host --help");
    EXPECT_EQ(refusal({"render"}), "render takes a kind and a family, see skyvane-host --help");
    EXPECT_EQ(refusal({"render", "radar"}), "render takes a kind and a family, see skyvane-host --help");
    EXPECT_EQ(
        refusal({"render", "a", "small", "c"}), "render takes a kind and a family, see skyvane-host --help");
    EXPECT_EQ(
        refusal({"render", "radar", "tiny"}), "unknown family \"tiny\": known are small, medium, large");
    EXPECT_EQ(refusal({"render", "radar", "small", "--fast"}), "unknown option \"--fast\"");
    EXPECT_EQ(refusal({"render", "radar", "small", "--scale"}), "--scale needs a value");
}

} // namespace skyvane
