#include "platform/net/semaphore.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <future>
#include <thread>
#include <vector>

namespace skyvane {

namespace {

using Permit = Semaphore::Permit;

} // namespace

TEST(Semaphore, permitsSoManyAtOnceAndInTheEndEverybody)
{
    constexpr int most = 2;
    Semaphore semaphore{most};
    std::atomic<int> inside = 0;
    std::atomic<int> mostInside = 0;
    std::atomic<int> permitted = 0;
    std::vector<std::jthread> threads(8);
    for (std::jthread& thread : threads) {
        thread = std::jthread([&] {
            for (int turn = 0; turn < 100; ++turn) {
                const Permit permit{semaphore, {}};
                permitted += permit ? 1 : 0;
                const int now = ++inside;
                for (int seen = mostInside; seen < now && !mostInside.compare_exchange_weak(seen, now);) { }
                std::this_thread::yield();
                --inside;
            }
        });
    }
    threads.clear();
    EXPECT_EQ(permitted, 800);
    EXPECT_LE(mostInside, most);
}

TEST(Semaphore, aStopTokenEndsTheWaitAndNobodyElsesTurn)
{
    Semaphore semaphore{1};
    std::stop_source stop;
    std::future<bool> stopped;
    std::future<bool> patient;
    {
        const Permit first{semaphore, {}};
        const auto wait = [&semaphore](const std::stop_token& token) {
            return static_cast<bool>(Permit{semaphore, token});
        };
        stopped = std::async(std::launch::async, wait, stop.get_token());
        patient = std::async(std::launch::async, wait, std::stop_token{});
        stop.request_stop();
        EXPECT_FALSE(stopped.get());
    }
    EXPECT_TRUE(patient.get());
    EXPECT_TRUE(Permit(semaphore, {}));
}

} // namespace skyvane
