#include "host/commands/completion.h"

#include "host/commands/table.h"
#include "tests/host/extension/fake_extension.h"

#include <gmock/gmock.h>

#include <sstream>

namespace skyvane {

namespace {

/// The words offered after these, without their meanings.
std::vector<std::string> offered(const std::vector<std::string>& words)
{
    const test::FakeExtension extension{"good"};
    std::ostringstream unused;
    std::istringstream lines{
        completions(commands(), words, {.extension = extension.program(), .out = unused})};
    std::vector<std::string> offered;
    for (std::string line; std::getline(lines, line);)
        offered.push_back(line.substr(0, line.find('\t')));
    return offered;
}

using testing::ElementsAre;
using testing::IsEmpty;

} // namespace

TEST(Completion, theFirstWordIsACommandAndAfterADashAnOption)
{
    EXPECT_THAT(offered({""}),
        ElementsAre("add", "remove", "undo", "move", "lock", "unlock", "refresh", "focus", "quit", "list",
            "render", "line", "status"));
    EXPECT_THAT(offered({"-"}), ElementsAre("--supervise", "--help", "--version"));
}

TEST(Completion, theSecondWordOfACommandFollowsItsFirst)
{
    EXPECT_THAT(offered({"list", ""}), ElementsAre("--placed", "--screens"));
    EXPECT_THAT(offered({"list", "--placed", ""}), IsEmpty());
    EXPECT_THAT(offered({"refresh", ""}), IsEmpty());
    EXPECT_THAT(offered({"paint", ""}), IsEmpty());
}

TEST(Completion, aFamilyIsOneOfTheKindBeforeIt)
{
    EXPECT_THAT(offered({"add", ""}), ElementsAre("clock", "moon"));
    EXPECT_THAT(offered({"add", "clock", ""}), ElementsAre("small", "medium"));
    EXPECT_THAT(offered({"add", "org.example.moon", ""}), ElementsAre("large"));
    EXPECT_THAT(offered({"add", "sundial", ""}), IsEmpty());
    EXPECT_THAT(offered({"add", "clock", "small", ""}), IsEmpty());
}

TEST(Completion, optionsStandAnywhereButOnce)
{
    EXPECT_THAT(offered({"render", "-"}), ElementsAre("--output", "--scale", "--sample", "--square"));
    EXPECT_THAT(offered({"render", "--sample", "clock", "small", ""}),
        ElementsAre("--output", "--scale", "--square"));
    EXPECT_THAT(offered({"render", "--scale", "2", "clock", ""}), ElementsAre("small", "medium"));
}

TEST(Completion, anOptionsValueFollowsIt)
{
    EXPECT_THAT(offered({"render", "--scale", ""}), ElementsAre("1", "2", "3", "4"));
    EXPECT_THAT(offered({"render", "clock", "--output", "pic"}), ElementsAre("*.png", "*.svg"));
}

} // namespace skyvane
