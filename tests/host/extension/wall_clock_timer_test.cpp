#include "host/extension/wall_clock_timer.h"

#include "tests/session/wait_for.h"

#include <gtest/gtest.h>

namespace skyvane {

using namespace std::chrono_literals;

TEST(WallClockTimer, wakesOnceAtItsMoment)
{
    int wakes = 0;
    const Date moment = Clock::now() + 80ms;
    WallClockTimer timer{[&] {
        ++wakes;
        EXPECT_GE(Clock::now(), moment);
    }};
    timer.wakeAt(moment);
    EXPECT_TRUE(test::waitFor([&] { return wakes > 0; }));
    EXPECT_FALSE(test::waitFor([&] { return wakes > 1; }, 100ms));
}

TEST(WallClockTimer, aMomentThatIsPastComesAtOnce)
{
    int wakes = 0;
    WallClockTimer timer{[&] { ++wakes; }};
    timer.wakeAt(Date{});
    EXPECT_TRUE(test::waitFor([&] { return wakes == 1; }));
}

TEST(WallClockTimer, aLaterMomentReplacesAnEarlierOne)
{
    int wakes = 0;
    WallClockTimer timer{[&] { ++wakes; }};
    timer.wakeAt(Clock::now() + 50ms);
    timer.wakeAt(Clock::now() + 1h);
    EXPECT_FALSE(test::waitFor([&] { return wakes > 0; }, 150ms));
}

} // namespace skyvane
