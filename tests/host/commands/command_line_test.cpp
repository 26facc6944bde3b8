#include "host/commands/command_line.h"

#include "host/commands/render_command.h"
#include "host/commands/table.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using Words = std::vector<std::string>;

CommandCall parse(const Words& words)
{
    return parseCommandLine(commands(), words);
}

std::string_view nameOf(const Words& words)
{
    return parse(words).command.name;
}

RenderWords render(const Words& words)
{
    const CommandCall call = parse(words);
    EXPECT_EQ(call.command.name, "render");
    return RenderWords::read(call.arguments);
}

std::string refusal(const Words& words)
{
    try {
        const CommandCall call = parse(words);
        if (call.command.name == "render")
            RenderWords::read(call.arguments);
        return "accepted";
    } catch (const UsageError& error) {
        return error.what();
    }
}

} // namespace

TEST(CommandLine, aWidgetIsRenderedAsAPNGOfScaleOne)
{
    EXPECT_EQ(
        render({"render", "radar", "small"}), (RenderWords{.kind = "radar", .family = WidgetFamily::small}));
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
        .corners = Corners::square,
    };
    EXPECT_EQ(
        render({"render", "--scale", "1.5", "radar", "--sample", "large", "--square", "--output", "a.SVG"}),
        expected);
    EXPECT_EQ(render({"render", "--square", "radar", "large", "--output=a.SVG", "--sample", "--scale=1.5"}),
        expected);
}

TEST(CommandLine, listHelpAndVersionStandAlone)
{
    EXPECT_EQ(nameOf({"list"}), "list");
    EXPECT_EQ(nameOf({"--help"}), "--help");
    EXPECT_EQ(nameOf({"--version"}), "--version");
    EXPECT_EQ(refusal({"list", "all"}), "\"list\" takes no more words");
}

TEST(CommandLine, theRunningHostIsToldByWords)
{
    EXPECT_EQ(nameOf({"add", "radar", "medium"}), "add");
    EXPECT_THAT(
        parse({"add", "radar", "medium"}).arguments.operands, testing::ElementsAre("radar", "medium"));
    EXPECT_EQ(nameOf({"remove", "12"}), "remove");
    EXPECT_THAT(parse({"remove", "12"}).arguments.operands, testing::ElementsAre("12"));
    EXPECT_EQ(nameOf({"list", "--placed"}), "list --placed");
    EXPECT_EQ(nameOf({"refresh"}), "refresh");
    EXPECT_EQ(nameOf({"quit"}), "quit");
    EXPECT_EQ(refusal({"list", "--placed", "all"}), "\"list\" takes no more words");
    EXPECT_EQ(refusal({"add", "radar"}), "add takes a kind and a family, see skyvane-host --help");
    EXPECT_EQ(refusal({"remove"}), "remove takes a widget's number, see skyvane-host --help");
    for (const char* word : {"0", "-1", "1x", "", "99999999999"})
        EXPECT_THAT(refusal({"remove", word}), testing::StartsWith("a widget's number is")) << word;
    EXPECT_EQ(refusal({"refresh", "all"}), "\"refresh\" takes no more words");
}

TEST(CommandLine, aScaleIsANumberAboveZeroAndUpToEight)
{
    EXPECT_EQ(render({"render", "radar", "small", "--scale", "8"}).scale, 8);
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

TEST(CommandLine, theHelpIsMadeOfTheTable)
{
    const Operand what{.name = "WHAT", .noun = "a thing", .help = "any thing"};
    const Operand where{.name = "WHERE", .noun = "a place"};
    const std::vector<Command> table{
        {
            .name = "put",
            .operands = {what, where},
            .options = {{.name = "--colour", .value = "NAME", .help = "of the thing"},
                {.name = "--now", .help = "at once"}},
            .help = "Puts a thing somewhere.",
            .meaning = "Put a thing",
            .run = nullptr,
        },
        {.name = "take", .meaning = "Take it", .run = nullptr},
    };
    EXPECT_THAT(usage(table), testing::EndsWith(R"(
  skyvane-host put WHAT WHERE [--colour NAME] [--now]
      Puts a thing somewhere.
      WHAT       any thing
      --colour   of the thing
      --now      at once
  skyvane-host take
)"));
    EXPECT_EQ(parseCommandLine(table, {"put", "--now", "a", "b"}).arguments.option("--now"), "");
    EXPECT_EQ(parseCommandLine(table, {"put", "a", "b"}).arguments.option("--now"), std::nullopt);
}

} // namespace skyvane
