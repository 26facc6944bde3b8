#include "host/extension/schedule.h"

#include "platform/pinned.h"
#include "tests/host/extension/fake_extension.h"
#include "tests/session/journal.h"
#include "tests/session/wait_for.h"
#include "ui/tree/build.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using namespace std::chrono_literals;

const WidgetTarget clock{.kind = "org.example.clock", .family = WidgetFamily::small};

constexpr ExtensionPace quick{
    .betweenTimelines = 250ms, .idle = 10s, .firstBackOff = 50ms, .longestBackOff = 50ms};

/// A time that no real timer reaches, so that only the test moves the clock.
constexpr Date future{std::chrono::sys_days{std::chrono::year{2100} / 1 / 1}};

WidgetEntry entryOf(Date date)
{
    return {
        .date = date,
        .isSample = false,
        .view = spacer(),
        .background = {0, 0, 0},
        .url = std::nullopt,
    };
}

class ScheduleTest : public testing::Test {
protected:
    explicit ScheduleTest(const std::string& behaviour = "good") : extension(behaviour) { }

    /// Asked so often, and every answer taken: the extension answers in order.
    bool waitForTimelines(std::size_t count)
    {
        if (!test::waitFor([&] { return extension.events("widgets.timeline").size() == count; }))
            return false;
        process.ask(Protocol::ListCall{}, [this, wanted = ++asked](const auto&) { answered = wanted; });
        return test::waitFor([&] { return answered == asked; });
    }

    test::Journal journal;
    Pinned<Date> now{future};
    test::FakeExtension extension;
    ExtensionProcess process{extension.program(), quick};
    int asked = 0;
    int answered = 0;
    std::map<int, std::vector<ShownEntry>> shown;
    Schedule schedule{process, [this](int widget, const ShownEntry& content) {
                          auto& list = shown[widget];
                          if (list.empty() || list.back() != content)
                              list.push_back(content);
                      }};
};

/// Knows placeholders, and answers no timeline.
class ForgetfulScheduleTest : public ScheduleTest {
protected:
    ForgetfulScheduleTest() : ScheduleTest("forgetful") { }
};

} // namespace

TEST_F(ScheduleTest, thePlaceholderIsAskedForFirstThenTheTimeline)
{
    schedule.add(1, clock);
    EXPECT_TRUE(waitForTimelines(1));
    const auto questions = extension.events("\"method\"");
    EXPECT_THAT(questions[0].what, testing::HasSubstr("widgets.placeholder"));
    EXPECT_THAT(questions[1].what, testing::HasSubstr("widgets.timeline"));
    EXPECT_FALSE(shown[1].empty());
}

TEST_F(ScheduleTest, twoHoursOfClockJumpedAreOneRefreshAWidgetSpaced)
{
    for (int widget = 1; widget <= 3; ++widget)
        schedule.add(widget, clock);
    EXPECT_TRUE(waitForTimelines(3));
    EXPECT_EQ(shown.size(), 3U);
    {
        const Pinned<Date> later{future + 2h};
        schedule.lookAtClock();
        schedule.lookAtClock();
        EXPECT_TRUE(waitForTimelines(6));
        EXPECT_FALSE(test::waitFor([&] { return extension.events("widgets.timeline").size() > 6; }, 300ms));
    }
    const auto timelines = extension.events("widgets.timeline");
    EXPECT_GT(timelines[5].at - timelines[3].at, quick.betweenTimelines);
}

TEST_F(ScheduleTest, aReloadDateThatIsPastIsNoReasonToHurry)
{
    schedule.add(1, clock);
    EXPECT_TRUE(waitForTimelines(1));
    EXPECT_FALSE(test::waitFor([&] { return extension.events("widgets.timeline").size() > 1; }, 300ms));
}

TEST_F(ScheduleTest, aRefreshByHandIsOneMoreQuestionForEachWidget)
{
    schedule.add(1, clock);
    schedule.add(2, clock);
    EXPECT_TRUE(waitForTimelines(2));
    schedule.refresh(1);
    EXPECT_TRUE(waitForTimelines(3));
    schedule.refreshAll();
    EXPECT_TRUE(waitForTimelines(5));
}

TEST_F(ScheduleTest, aRefreshWhileOneIsUnderWayIsMadeAfterwards)
{
    schedule.add(1, clock);
    schedule.refreshAll();
    schedule.refreshAll();
    EXPECT_TRUE(waitForTimelines(2));
    EXPECT_FALSE(test::waitFor([&] { return extension.events("widgets.timeline").size() > 2; }, 300ms));
}

TEST_F(ScheduleTest, aWidgetThatIsRemovedIsShownNoMore)
{
    schedule.add(1, clock);
    schedule.remove(1);
    EXPECT_TRUE(waitForTimelines(1));
    EXPECT_FALSE(test::waitFor([&] { return !shown.empty(); }, 200ms));
}

TEST_F(ForgetfulScheduleTest, whatIsShownStaysAndIsStaleAfterTwoMisses)
{
    schedule.add(1, clock);
    EXPECT_TRUE(waitForTimelines(1));
    EXPECT_EQ(test::Journal::lines().size(), 1U);
    ASSERT_EQ(shown[1].size(), 1U);
    EXPECT_FALSE(shown[1].back().isStale);
    const Pinned<Date> later{future + 1h};
    schedule.lookAtClock();
    EXPECT_TRUE(test::waitFor([&] { return shown[1].back().isStale; }));
    EXPECT_EQ(shown[1].size(), 2U);
    EXPECT_EQ(shown[1].front().entry, shown[1].back().entry);
    EXPECT_EQ(test::Journal::lines().size(), 1U);
}

TEST(RetryAfter, doublesFromFiveSecondsToFiveMinutes)
{
    EXPECT_EQ(retryAfter(1), 5s);
    EXPECT_EQ(retryAfter(2), 10s);
    EXPECT_EQ(retryAfter(6), 160s);
    EXPECT_EQ(retryAfter(7), 5min);
    EXPECT_EQ(retryAfter(1000), 5min);
}

TEST(EntryAt, isTheLastThatHasBegunElseTheFirst)
{
    const WidgetTimeline timeline{
        .entries = {entryOf(future), entryOf(future + 1h)}, .reload = {future + 2h}};
    EXPECT_EQ(entryAt(timeline, future - 1h), &timeline.entries[0]);
    EXPECT_EQ(entryAt(timeline, future + 59min), &timeline.entries[0]);
    EXPECT_EQ(entryAt(timeline, future + 1h), &timeline.entries[1]);
    EXPECT_EQ(entryAt({.entries = {}, .reload = {future}}, future), nullptr);
}

} // namespace skyvane
