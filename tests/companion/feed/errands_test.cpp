#include "companion/feed/errands.h"
#include "tests/session/wait_for.h"
#include "tests/support/process_status.h"

#include <unistd.h>

#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <stop_token>

namespace skyvane {

namespace {

std::size_t ownThreads()
{
    return test::ProcessStatus::number(getpid(), "Threads");
}

} // namespace

TEST(Errands, theirThreadsEndWithTheirWorkAndWakeNobodyUpLater)
{
    using namespace std::chrono_literals;
    Errands errands;
    const std::size_t before = ownThreads();
    std::size_t during = 0;
    const Errand errand = errands.run(
        [](const std::stop_token&) { return ownThreads(); }, [&](std::size_t threads) { during = threads; });
    ASSERT_TRUE(test::waitFor([&] { return during > 0; }));
    EXPECT_EQ(during, before + 1);
    EXPECT_TRUE(test::waitFor([&] { return ownThreads() == before; }, 10s));
}

} // namespace skyvane
