#include "companion/feed/pacer.h"

#include "tests/support/scratch_folder.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <map>
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
        const auto answer = answers.find(request.url.text());
        return answer != answers.end() ? answer->second : URLResponse{.status = 200, .body = {}};
    }

    int statusOf(const std::string& url) { return pacer.data({.url = URL::parse(url).value()}, {}).status; }

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

    std::filesystem::path turnFile() const { return scratch.path() / "turn"; }

    test::ScratchFolder scratch;
    std::mutex mutex;
    std::condition_variable_any changed;
    std::map<std::string, URLResponse> answers; ///< By URL; else status 200.
    std::vector<std::string> begun;
    std::vector<std::string> cancelled;
    std::vector<Passage> passages;
    std::chrono::milliseconds rest = 80ms;
    Pacer pacer{
        [this](const URLRequest& request, const std::stop_token& stop) { return transport(request, stop); },
        {.rest = rest,
            .refusal = 200ms,
            .longestRefusal = 300ms,
            .patience = 400ms,
            .sharedTurn = turnFile()}};
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

TEST_F(PacerTest, aHostThatRefusesIsLeftAlone)
{
    answers["https://one.test/"] = {.status = 429, .body = {}};
    EXPECT_EQ(statusOf("https://one.test/"), 429);
    EXPECT_EQ(statusOf("https://one.test/other"), 429) << "the answer of the refusal";
    EXPECT_EQ(begun.size(), 1U);
    EXPECT_EQ(statusOf("https://two.test/"), 200) << "others are asked";
    std::this_thread::sleep_until(passages.front().to + 220ms);
    answers.clear();
    EXPECT_EQ(statusOf("https://one.test/"), 200);
    EXPECT_EQ(statusOf("https://one.test/"), 200);
}

TEST_F(PacerTest, eachRefusalInARowDoublesTheWaitUpToTheLongest)
{
    answers["https://one.test/"] = {.status = 403, .body = {}};
    while (passages.size() < 4)
        EXPECT_EQ(statusOf("https://one.test/"), 403);
    EXPECT_GE(passages[1].from - passages[0].to, 200ms);
    EXPECT_GE(passages[2].from - passages[1].to, 300ms);
    EXPECT_LT(passages[3].from - passages[2].to, 800ms);
}

TEST_F(PacerTest, aHostIsLeftAloneForAsLongAsItAsks)
{
    answers["https://one.test/"] = {.status = 429, .body = {}, .retryAfter = std::chrono::seconds{1}};
    EXPECT_EQ(statusOf("https://one.test/"), 429);
    std::this_thread::sleep_until(passages.front().to + 500ms);
    EXPECT_EQ(statusOf("https://one.test/"), 429);
    EXPECT_EQ(begun.size(), 1U);
    std::this_thread::sleep_until(passages.front().to + 1050ms);
    statusOf("https://one.test/");
    EXPECT_EQ(begun.size(), 2U);
}

TEST_F(PacerTest, otherErrorsAreNoRefusal)
{
    answers["https://one.test/"] = {.status = 503, .body = {}};
    EXPECT_EQ(statusOf("https://one.test/"), 503);
    EXPECT_EQ(statusOf("https://one.test/"), 503);
    EXPECT_EQ(begun.size(), 2U);
}

TEST_F(PacerTest, aSourceOfTheWidgetsIsAskedInTurnWithTheUsersOtherPrograms)
{
    auto others = SharedTurn::take(turnFile(), rest);
    ASSERT_TRUE(others);
    const std::jthread waiting = ask("https://api.adsb.lol/");
    EXPECT_EQ(statusOf("https://one.test/"), 200) << "the widgets do not ask it";
    {
        const std::lock_guard lock{mutex};
        EXPECT_THAT(begun, ElementsAre("https://one.test/"));
    }
    others.reset();
    const auto given = std::chrono::steady_clock::now();
    ASSERT_TRUE(hasBegun(2));
    EXPECT_GE(std::chrono::steady_clock::now() - given, rest - 5ms);
}

TEST_F(PacerTest, aTurnThatNeverComesIsNotWaitedForLongerThanPatience)
{
    const auto others = SharedTurn::take(turnFile(), rest);
    EXPECT_EQ(statusOf("https://api.adsb.lol/"), 200);
}

TEST_F(PacerTest, whoGivesUpWaitingForOtherProgramsIsCancelled)
{
    const auto others = SharedTurn::take(turnFile(), rest);
    std::jthread waiting = ask("https://api.adsb.lol/");
    waiting.request_stop();
    waiting.join();
    EXPECT_THAT(cancelled, ElementsAre("https://api.adsb.lol/"));
    EXPECT_TRUE(begun.empty());
}

} // namespace skyvane
