#include "host/commands/run_command.h"

#include "tests/host/extension/fake_extension.h"

#include <QImage>

#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

namespace skyvane {

namespace {

using testing::IsEmpty;
using testing::StartsWith;

struct CommandOutcome {
    int status;
    std::string out;
    std::string error;
};

CommandOutcome run(const std::vector<std::string>& words, const ExtensionProgram& extension)
{
    std::ostringstream out;
    std::ostringstream error;
    const int status = runCommand(words, extension, {.out = out, .error = error});
    return {status, out.str(), error.str()};
}

bool isOneLine(const std::string& text)
{
    return text.find('\n') == text.size() - 1;
}

std::string contents(const std::filesystem::path& path)
{
    std::ifstream file{path};
    return {std::istreambuf_iterator<char>{file}, {}};
}

class RunCommand : public testing::Test {
protected:
    CommandOutcome render(const std::string& behaviour, std::vector<std::string> words)
    {
        const test::FakeExtension extension{behaviour};
        words.insert(words.begin(), "render");
        words.insert(words.end(), {"--output", output.string()});
        return run(words, extension.program());
    }

    /// Neither a picture nor what one was being made of.
    bool isFolderEmpty() const { return std::filesystem::is_empty(folder.path()); }

    test::ScratchFolder folder;
    std::filesystem::path output = folder.path() / "picture.png";
};

} // namespace

TEST_F(RunCommand, aWidgetIsWrittenAndItsFilePrinted)
{
    const CommandOutcome outcome = render("good", {"clock", "small"});
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, output.string() + "\n");
    const QImage image{QString::fromStdString(output.string())};
    EXPECT_EQ(image.size(), QSize(170, 170));
    EXPECT_EQ(image.pixelColor(2, 30), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(85, 85), QColor(255, 0, 0));
}

TEST_F(RunCommand, aWidgetIsKnownByItsFullKindToo)
{
    EXPECT_EQ(render("good", {"org.example.clock", "medium", "--scale", "2"}).status, 0);
    EXPECT_EQ(QImage{QString::fromStdString(output.string())}.size(), QSize(728, 340));
}

TEST_F(RunCommand, aSampleIsRenderedOnRequest)
{
    EXPECT_EQ(render("empty", {"clock", "small"}).error,
        "skyvane-host: the widget extension answered a timeline without entries\n");
    EXPECT_EQ(render("good", {"clock", "small", "--sample"}).status, 0);
}

TEST_F(RunCommand, cornersAreRoundAsOnTheDesktopUnlessSquareOnesAreAskedFor)
{
    const auto corner = [&](const std::vector<std::string>& words) {
        EXPECT_EQ(render("good", words).status, 0);
        return QImage{QString::fromStdString(output.string())}.pixelColor(2, 2);
    };
    EXPECT_EQ(corner({"clock", "small"}).alpha(), 0);
    EXPECT_EQ(corner({"clock", "small", "--square"}), QColor(0, 0, 255));
    output = folder.path() / "picture.svg";
    EXPECT_EQ(corner({"clock", "small"}).alpha(), 0);
    EXPECT_EQ(corner({"clock", "small", "--square"}), QColor(0, 0, 255));
}

TEST_F(RunCommand, anSVGIsWrittenByItsEnding)
{
    output = folder.path() / "picture.svg";
    EXPECT_EQ(render("good", {"clock", "small"}).status, 0);
    EXPECT_THAT(contents(output), testing::HasSubstr("<title>Clock</title>"));
}

TEST_F(RunCommand, nodesOfUnknownTypesAreLeftOut)
{
    EXPECT_EQ(render("strange", {"clock", "small"}).error, "");
    EXPECT_EQ(QImage{QString::fromStdString(output.string())}.pixelColor(85, 85), QColor(0, 0, 255));
}

TEST_F(RunCommand, anUnknownWidgetIsAnsweredWithTheKnownOnes)
{
    const CommandOutcome outcome = render("good", {"sundial", "small"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.error, "skyvane-host: unknown widget \"sundial\": known are clock, moon\n");
    EXPECT_TRUE(isFolderEmpty());
}

TEST_F(RunCommand, aFamilyThatTheWidgetLacksIsAnsweredWithThoseItHas)
{
    const CommandOutcome outcome = render("good", {"clock", "large"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.error, "skyvane-host: \"clock\" has no family \"large\", only small, medium\n");
    EXPECT_TRUE(isFolderEmpty());
}

TEST_F(RunCommand, wrongWordsStartNoExtension)
{
    const CommandOutcome outcome = run({"render", "clock"}, {.path = "/nowhere/extension"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.error, "skyvane-host: render takes a kind and a family, see skyvane-host --help\n");
}

TEST_F(RunCommand, aFailingExtensionIsOneLineAndNoFile)
{
    for (const char* behaviour : {"refusing", "crashing", "crashing-later", "ending", "silent", "babbling",
             "misnumbering", "mistyping", "empty", "huge", "endless"}) {
        const CommandOutcome outcome = render(behaviour, {"clock", "small"});
        EXPECT_EQ(outcome.status, 1) << behaviour;
        EXPECT_THAT(outcome.error, StartsWith("skyvane-host: the widget extension")) << behaviour;
        EXPECT_TRUE(isOneLine(outcome.error)) << outcome.error;
        EXPECT_THAT(outcome.out, IsEmpty()) << behaviour;
        EXPECT_TRUE(isFolderEmpty()) << behaviour;
    }
}

TEST_F(RunCommand, anExistingFileSurvivesAFailure)
{
    std::ofstream{output} << "older picture";
    EXPECT_EQ(render("babbling", {"clock", "small"}).status, 1);
    EXPECT_EQ(contents(output), "older picture");
}

TEST_F(RunCommand, anExistingFileIsReplaced)
{
    std::ofstream{output} << "older picture";
    EXPECT_EQ(render("good", {"clock", "small"}).status, 0);
    EXPECT_THAT(contents(output), StartsWith("\x89PNG"));
}

TEST_F(RunCommand, aFileThatCannotBeWrittenIsTold)
{
    const std::filesystem::path parent = folder.path() / "missing";
    output = parent / "picture.png";
    const CommandOutcome outcome = render("good", {"clock", "small"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.error, StartsWith("skyvane-host: cannot write " + output.string() + ": "));
    EXPECT_TRUE(isOneLine(outcome.error));

    output = folder.path() / "folder.png";
    std::filesystem::create_directory(output);
    EXPECT_EQ(render("good", {"clock", "small"}).status, 1);
    EXPECT_TRUE(std::filesystem::is_empty(output));
}

TEST_F(RunCommand, theListIsOneLineAWidget)
{
    const test::FakeExtension extension{"good"};
    EXPECT_EQ(run({"list"}, extension.program()).out,
        "org.example.clock\tClock\tsmall, medium\norg.example.moon\tMoon and stars\tlarge\n");
    EXPECT_EQ(run({"list"}, {.path = "/nowhere/extension"}).status, 1);
}

TEST_F(RunCommand, nothingThatAnExtensionSaysSteersATerminal)
{
    const test::FakeExtension steering{"steering"};
    EXPECT_EQ(run({"list"}, steering.program()).out, "org.example. [2J\tClock 31m \tsmall\n");
    const auto [status, out, error] = run({"render", "org.example.\x1b[2J", "small"}, steering.program());
    EXPECT_EQ(status, 1);
    EXPECT_THAT(error, testing::HasSubstr(" [31m x"));
    EXPECT_LT(error.size(), 400U);
    const auto wrong = run({"\x1b[31m\u009b\u202e\n"}, steering.program());
    EXPECT_EQ(wrong.error, "skyvane-host: unknown command \" [31m  \", see skyvane-host --help\n");
}

TEST_F(RunCommand, helpAndVersionNeedNoExtension)
{
    EXPECT_THAT(run({"--help"}, {.path = "/nowhere"}).out, StartsWith("Usage:\n"));
    EXPECT_THAT(
        run({"--version"}, {.path = "/nowhere"}).out, testing::MatchesRegex("skyvane-host [0-9.]+\n"));
}

TEST_F(RunCommand, aShellIsToldWhatMayComeNext)
{
    EXPECT_THAT(run({"--complete", "list", ""}, {.path = "/nowhere"}).out, StartsWith("--placed\t"));
    EXPECT_EQ(run({"--complete", "add", ""}, {.path = "/nowhere"}).out, "");
}

TEST_F(RunCommand, withoutACommandTheUsageIsShown)
{
    const CommandOutcome outcome = run({}, {.path = "/nowhere"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.error, StartsWith("Usage:\n"));
    EXPECT_EQ(outcome.out, "");
}

} // namespace skyvane
