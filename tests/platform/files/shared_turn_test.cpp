#include "platform/files/shared_turn.h"

#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <thread>

namespace skyvane {

namespace {

using namespace std::chrono_literals;

class SharedTurnTest : public testing::Test {
protected:
    std::filesystem::path file() const { return scratch.path() / "turn"; }

    /// As another program sees it.
    bool isFreeElsewhere(std::chrono::milliseconds rest) const
    {
        const pid_t other = fork();
        if (other == 0)
            _exit(SharedTurn::take(file(), rest) ? 0 : 1);
        int status = 0;
        waitpid(other, &status, 0);
        return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }

    test::ScratchFolder scratch;
};

} // namespace

TEST_F(SharedTurnTest, isOnePrograms)
{
    auto turn = SharedTurn::take(file(), 0ms);
    ASSERT_TRUE(turn);
    EXPECT_FALSE(SharedTurn::take(file(), 0ms));
    EXPECT_FALSE(isFreeElsewhere(0ms));
    turn.reset();
    EXPECT_TRUE(isFreeElsewhere(0ms));
}

TEST_F(SharedTurnTest, theFirstNeedsNoRestTheNextDoes)
{
    ASSERT_TRUE(SharedTurn::take(file(), 1h)) << "nobody has had it";
    EXPECT_FALSE(SharedTurn::take(file(), 1h));
    EXPECT_FALSE(isFreeElsewhere(1h));
    std::this_thread::sleep_for(30ms);
    EXPECT_TRUE(SharedTurn::take(file(), 20ms));
}

TEST_F(SharedTurnTest, aClockThatWasSetBackEndsTheRest)
{
    ASSERT_TRUE(SharedTurn::take(file(), 1s));
    std::filesystem::last_write_time(file(), std::filesystem::file_time_type::clock::now() + 1h);
    EXPECT_TRUE(SharedTurn::take(file(), 1s));
}

TEST_F(SharedTurnTest, endsWithTheProgramThatHadIt)
{
    const pid_t other = fork();
    if (other == 0) {
        const auto turn = SharedTurn::take(file(), 0ms);
        _exit(turn ? 0 : 1);
    }
    int status = 0;
    waitpid(other, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_TRUE(SharedTurn::take(file(), 0ms));
}

TEST_F(SharedTurnTest, isEverybodysWhereNobodyCanMeet)
{
    for (const std::filesystem::path& nowhere : {std::filesystem::path{}, scratch.path() / "missing/turn"}) {
        const auto one = SharedTurn::take(nowhere, 1h);
        const auto other = SharedTurn::take(nowhere, 1h);
        EXPECT_TRUE(one && other) << nowhere;
    }
    std::filesystem::create_symlink(scratch.path() / "elsewhere", file());
    EXPECT_TRUE(SharedTurn::take(file(), 1h));
    EXPECT_FALSE(std::filesystem::exists(scratch.path() / "elsewhere")) << "no link is followed";
}

} // namespace skyvane
