#include "platform/net/broken_pipe.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <array>
#include <cerrno>

namespace skyvane {

namespace {

bool isBlocked()
{
    sigset_t blocked;
    pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
    return sigismember(&blocked, SIGPIPE) == 1;
}

bool isPending()
{
    sigset_t pending;
    sigpending(&pending);
    return sigismember(&pending, SIGPIPE) == 1;
}

} // namespace

TEST(WithoutBrokenPipeSignal, aWriteThatNobodyReadsFailsAndNothingElseHappens)
{
    std::array<int, 2> ends;
    ASSERT_EQ(pipe(ends.data()), 0);
    close(ends[0]);
    {
        const WithoutBrokenPipeSignal guard;
        EXPECT_EQ(write(ends[1], "x", 1), -1);
        EXPECT_EQ(errno, EPIPE);
        EXPECT_TRUE(isPending());
    }
    close(ends[1]);
    EXPECT_FALSE(isPending());
    EXPECT_FALSE(isBlocked());
}

TEST(WithoutBrokenPipeSignal, aSignalThatWasPendingBeforeStaysSo)
{
    const WithoutBrokenPipeSignal outer;
    pthread_kill(pthread_self(), SIGPIPE);
    {
        const WithoutBrokenPipeSignal inner;
    }
    EXPECT_TRUE(isPending());
    EXPECT_TRUE(isBlocked());
}

} // namespace skyvane
