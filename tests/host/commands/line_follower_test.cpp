#include "host/commands/line_follower.h"

#include "platform/pinned.h"
#include "tests/session/wait_for.h"
#include "tests/support/scratch_folder.h"

#include <gmock/gmock.h>

#include <fstream>

namespace skyvane {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

/// A time that no real timer reaches, so that only the test moves the clock.
constexpr Date start{std::chrono::sys_days{std::chrono::year{2100} / 1 / 1}};

class LineFollowerTest : public testing::Test {
protected:
    /// Asks as at this moment, when it is time.
    void at(Date moment)
    {
        now.emplace(moment);
        follower.lookAtClock();
    }

    LineNews next{.line = "ASA512", .again = start + 5min};
    int asked = 0;
    std::vector<std::string> printed{};
    test::ScratchFolder folder;
    std::filesystem::path configuration = folder.path() / "widget-config.json";
    std::optional<Pinned<Date>> now{start};
    LineFollower follower{[this] {
                              ++asked;
                              return next;
                          },
        [this](const std::string& line) { printed.push_back(line); }, configuration};
};

} // namespace

TEST_F(LineFollowerTest, itAsksAtOnceAndThenAtTheReloadDate)
{
    at(start);
    at(start + 4min);
    EXPECT_EQ(asked, 1);
    next.again = start + 10min;
    at(start + 5min);
    EXPECT_EQ(asked, 2);
}

TEST_F(LineFollowerTest, itPrintsWhatHasChangedOnly)
{
    at(start);
    next.again = start + 10min;
    at(start + 5min);
    EXPECT_THAT(printed, ElementsAre("ASA512"));
    next.line = "DLH400";
    at(start + 10min);
    EXPECT_THAT(printed, ElementsAre("ASA512", "DLH400"));
}

TEST_F(LineFollowerTest, aMachineThatSleptPastTheDateIsUpToDateAgain)
{
    at(start);
    at(start + 8h);
    EXPECT_EQ(asked, 2);
}

TEST_F(LineFollowerTest, aClockThatIsSetBackIsNoReasonToWaitForTheOldDate)
{
    at(start);
    at(start - 24h);
    EXPECT_EQ(asked, 2);
}

TEST_F(LineFollowerTest, aFailureIsSaidAndTriedAgainSoonAndThenLater)
{
    next = {.line = "No answer"};
    at(start);
    at(start + 4s);
    EXPECT_EQ(asked, 1);
    at(start + 5s);
    EXPECT_EQ(asked, 2);
    at(start + 14s);
    EXPECT_EQ(asked, 2);
    at(start + 15s);
    EXPECT_EQ(asked, 3);
    EXPECT_THAT(printed, ElementsAre("No answer"));
    next = {.line = "ASA512", .again = start + 10min};
    at(start + 5min);
    EXPECT_THAT(printed, ElementsAre("No answer", "ASA512"));
}

TEST_F(LineFollowerTest, aDateThatHasPassedIsNotAskedAtMoreOftenThanEveryFiveSeconds)
{
    next.again = start - 1h;
    at(start);
    at(start + 4s);
    EXPECT_EQ(asked, 1);
    at(start + 5s);
    EXPECT_EQ(asked, 2);
}

TEST_F(LineFollowerTest, aChangedConfigurationIsAReasonToAskButNotWithinFiveSeconds)
{
    at(start);
    next = {.line = "DLH400", .again = start + 10min};
    now.emplace(start + 2s);
    follower.askSoon();
    EXPECT_EQ(asked, 1);
    at(start + 5s);
    EXPECT_EQ(asked, 2);

    now.emplace(start + 1min);
    std::ofstream{configuration} << "{}";
    EXPECT_TRUE(test::waitFor([&] { return asked == 3; }));
}

} // namespace skyvane
