#include "companion/feed/pacer.h"

#include <gmock/gmock.h>

#include <thread>

namespace skyvane {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

/// Keeps who was let through and when; a request for a path of "/stall" waits to be stopped.
class PacerTest : public testing::Test {
protected:
    struct Passage {
        std::string url;
        std::chrono::steady_clock::time_point from;
        std::chrono::steady_clock::time_point to;
    };

    URLResponse transport(const URLRequest& request, const std::stop_token& stop)
    {
        const auto from = std::chrono::steady_clock::now();
        {
            std::unique_lock lock{mutex};
            begun.push_back(request.url.text());
            changed.notify_all();
            if (request.url.text().ends_with("/stall"))
                changed.wait(lock, stop, [] { return false; });
        }
        const std::lock_guard lock{mutex};
        passages.push_back({request.url.text(), from, std::chrono::steady_clock::now()});
        return {.status = 200, .body = {}};
    }

    std::jthread ask(const std::string& url)
    {
        return std::jthread{[this, url](std::stop_token stop) {
            try {
                pacer.data({.url = URL::parse(url).value()}, std::move(stop));
            } catch (const CancellationError&) {
                const std::lock_guard lock{mutex};
                cancelled.push_back(url);
            }
        }};
    }

    bool hasBegun(std::size_t count)
    {
        std::unique_lock lock{mutex};
        return changed.wait_for(lock, 10s, [&] { return begun.size() >= count; });
    }

    std::mutex mutex;
    std::condition_variable_any changed;
    std::vector<std::string> begun;
    std::vector<std::string> cancelled;
    std::vector<Passage> passages;
    std::chrono::milliseconds rest = 80ms;
    Pacer pacer{
        [this](const URLRequest& request, const std::stop_token& stop) { return transport(request, stop); },
        rest};
};

} // namespace

TEST_F(PacerTest, aHostRestsAfterEveryRequest)
{
    {
        std::vector<std::jthread> asking;
        asking.reserve(4);
        for (int count = 0; count < 4; ++count)
            asking.push_back(ask("https://one.test/" + std::to_string(count)));
        for (std::jthread& one : asking)
            one.join();
    }
    ASSERT_EQ(passages.size(), 4U);
    for (std::size_t next = 1; next < passages.size(); ++next)
        EXPECT_GE(passages[next].from - passages[next - 1].to, rest);
}

TEST_F(PacerTest, aStalledHostHoldsUpNoOther)
{
    const std::jthread stalled = ask("https://one.test/stall");
    ASSERT_TRUE(hasBegun(1));
    ask("https://two.test/").join();
    EXPECT_EQ(passages.size(), 1U);
}

TEST_F(PacerTest, whoGivesUpIsNoLongerWaitedFor)
{
    std::jthread first = ask("https://one.test/stall");
    ASSERT_TRUE(hasBegun(1));
    std::jthread second = ask("https://one.test/second");
    second.request_stop();
    second.join();
    EXPECT_THAT(cancelled, ElementsAre("https://one.test/second"));
    first.request_stop();
    first.join();
    ask("https://one.test/third").join();
    EXPECT_THAT(begun, ElementsAre("https://one.test/stall", "https://one.test/third"));
}

} // namespace skyvane
