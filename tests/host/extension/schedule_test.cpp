#include "platform/files/shared_turn.h"
#include "tests/host/extension/schedule_fixture.h"
#include "tests/support/scratch_folder.h"
#include "ui/tree/build.h"

#include <filesystem>
#include <optional>

namespace skyvane {

namespace {

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

/// The first widget's timeline is good for an hour, every other's for ten minutes.
class TwoDatesScheduleTest : public ScheduleTest {
protected:
    TwoDatesScheduleTest() : ScheduleTest("of-two-dates") { }
};

/// A schedule that shares its turn with the user's other programs.
class SharedTurnScheduleTest : public ScheduleTest {
protected:
    void moveClock(std::chrono::milliseconds time)
    {
        moment += time;
        later.reset();
        later.emplace(moment);
        paced.lookAtClock();
    }

    Date moment = future;
    std::optional<Pinned<Date>> later;
    test::ScratchFolder scratch;
    std::filesystem::path turn = scratch.path() / "turn";
    std::vector<ShownEntry> shownPaced;
    Schedule paced{process, [this](int, const ShownEntry& content) { shownPaced.push_back(content); }, turn};
};

} // namespace

TEST_F(ScheduleTest, thePlaceholderIsAskedForFirstThenTheTimeline)
{
    schedule.add(1, clock);
    EXPECT_TRUE(waitForTimelines(1));
    const auto all = extension.events("\"method\"");
    EXPECT_THAT(all[0].what, testing::HasSubstr("widgets.placeholder"));
    EXPECT_THAT(all[1].what, testing::HasSubstr("widgets.timelines"));
    EXPECT_FALSE(shown[1].empty());
}

TEST_F(ScheduleTest, alertsAreAskedForByTheRulesAndHandedOn)
{
    std::vector<std::size_t> told;
    schedule.onAlerts([&](const std::vector<Alert>& alerts) { told.push_back(alerts.size()); });
    schedule.setAlertRules(AlertRules{.military = true});
    schedule.add(1, clock);
    EXPECT_TRUE(waitForTimelines(1));
    EXPECT_THAT(questions()[0].what, testing::HasSubstr(R"("alerts":{"military":true})"));
    EXPECT_THAT(told, testing::IsEmpty()); // This extension knows none.
}

TEST_F(ScheduleTest, withoutRulesNobodyIsAskedForAlerts)
{
    schedule.setAlertRules(AlertRules{.military = true});
    schedule.setAlertRules(std::nullopt);
    schedule.add(1, clock);
    EXPECT_TRUE(waitForTimelines(1));
    EXPECT_THAT(questions()[0].what, testing::Not(testing::HasSubstr("alerts")));
}

TEST_F(ScheduleTest, oneQuestionIsForAllWidgets)
{
    schedule.add(1, clock);
    schedule.add(2, moon);
    schedule.add(3, mediumClock);
    EXPECT_TRUE(waitForTimelines(1));
    EXPECT_THAT(questions()[0].what,
        testing::HasSubstr(R"("widgets":[{"kind":"org.example.clock","family":"small"},)"
                           R"({"kind":"org.example.moon","family":"large"},)"
                           R"({"kind":"org.example.clock","family":"medium"}])"));
    EXPECT_EQ(shown.size(), 3U);
    EXPECT_TRUE(staysAt(1));
}

TEST_F(ScheduleTest, widgetsOfTheSameKindAndFamilyShareATimeline)
{
    schedule.add(1, clock);
    schedule.add(2, clock);
    EXPECT_TRUE(waitForTimelines(1));
    EXPECT_THAT(questions()[0].what,
        testing::HasSubstr(R"("widgets":[{"kind":"org.example.clock","family":"small"}])"));
    EXPECT_EQ(shown[1], shown[2]);
}

TEST_F(ScheduleTest, twoHoursOfClockJumpedAreOneRefresh)
{
    schedule.add(1, clock);
    schedule.add(2, moon);
    EXPECT_TRUE(waitForTimelines(1));
    const Pinned<Date> later{future + 2h};
    schedule.lookAtClock();
    schedule.lookAtClock();
    EXPECT_TRUE(waitForTimelines(2));
    EXPECT_TRUE(staysAt(2));
}

TEST_F(ScheduleTest, aReloadDateThatIsPastIsNoReasonToHurry)
{
    schedule.add(1, clock);
    EXPECT_TRUE(waitForTimelines(1));
    EXPECT_TRUE(staysAt(1));
}

TEST_F(ScheduleTest, aWidgetThatIsPlacedLaterIsAskedForSoonAndTheOthersWithIt)
{
    schedule.add(1, clock);
    EXPECT_TRUE(waitForTimelines(1));
    schedule.add(2, moon);
    EXPECT_TRUE(waitForTimelines(2));
    EXPECT_THAT(questions()[1].what, testing::HasSubstr(R"("small"},{"kind":"org.example.moon")"));
    EXPECT_GE(questions()[1].at - questions()[0].at, apart);
    EXPECT_TRUE(staysAt(2));
}

TEST_F(ScheduleTest, aWidgetThatIsPlacedWhileAQuestionWaitsForItsTurnIsInIt)
{
    schedule.add(1, clock);
    EXPECT_TRUE(waitForTimelines(1));
    schedule.refresh(1);
    schedule.add(2, moon);
    EXPECT_TRUE(waitForTimelines(2));
    EXPECT_THAT(questions()[1].what, testing::HasSubstr("org.example.moon"));
    EXPECT_TRUE(staysAt(2));
}

TEST_F(TwoDatesScheduleTest, theEarliestReloadDateIsThatOfAll)
{
    schedule.add(1, clock);
    schedule.add(2, moon);
    EXPECT_TRUE(waitForTimelines(1));
    {
        const Pinned<Date> before{future + 10min - 1s};
        schedule.lookAtClock();
        EXPECT_TRUE(staysAt(1));
    }
    const Pinned<Date> then{future + 10min};
    schedule.lookAtClock();
    EXPECT_TRUE(waitForTimelines(2));
    EXPECT_THAT(questions()[1].what, testing::HasSubstr("org.example.clock"));
    EXPECT_THAT(questions()[1].what, testing::HasSubstr("org.example.moon"));
}

TEST_F(ScheduleTest, aRefreshByHandIsOneMoreQuestionForAllWidgets)
{
    schedule.add(1, clock);
    schedule.add(2, moon);
    EXPECT_TRUE(waitForTimelines(1));
    schedule.refresh(1);
    EXPECT_TRUE(waitForTimelines(2));
    schedule.refreshAll();
    EXPECT_TRUE(waitForTimelines(3));
    EXPECT_THAT(questions()[1].what, testing::HasSubstr("org.example.moon"));
}

TEST_F(ScheduleTest, howeverOftenTheUserPressesTheQuestionsKeepTheirDistance)
{
    schedule.add(1, clock);
    EXPECT_TRUE(waitForTimelines(1));
    for (int press = 0; press < 20; ++press) {
        schedule.refresh(1);
        schedule.refreshAll();
    }
    EXPECT_TRUE(waitForTimelines(2));
    EXPECT_GE(questions()[1].at - questions()[0].at, apart);
    EXPECT_TRUE(staysAt(2));
}

TEST_F(ScheduleTest, aRefreshWhileTheQuestionIsUnderWayIsMadeAfterwards)
{
    schedule.add(1, clock);
    EXPECT_TRUE(test::waitFor([&] { return !questions().empty(); }));
    schedule.refreshAll();
    schedule.refreshAll();
    EXPECT_TRUE(waitForTimelines(2));
    EXPECT_TRUE(staysAt(2));
}

TEST_F(ScheduleTest, aWidgetShowsAtOnceThatItWasAskedToRefreshUntilItIs)
{
    schedule.add(1, clock);
    schedule.add(2, moon);
    EXPECT_TRUE(waitForTimelines(1));
    const std::size_t before = shown[1].size();
    schedule.refresh(1);
    EXPECT_TRUE(shown[1].back().isRefreshing);
    EXPECT_FALSE(shown[2].back().isRefreshing);
    EXPECT_TRUE(waitForTimelines(2));
    EXPECT_FALSE(shown[1].back().isRefreshing);
    EXPECT_EQ(shown[1].size(), before + 2) << "painted once when asked and once when answered";
    schedule.refreshAll();
    EXPECT_TRUE(shown[1].back().isRefreshing && shown[2].back().isRefreshing);
    EXPECT_TRUE(waitForTimelines(3));
    EXPECT_FALSE(shown[1].back().isRefreshing || shown[2].back().isRefreshing);
}

TEST_F(ScheduleTest, aPressWhileTheQuestionIsUnderWayIsShownUntilItsOwnAnswer)
{
    schedule.add(1, clock);
    EXPECT_TRUE(test::waitFor([&] { return !questions().empty(); }));
    schedule.refresh(1);
    EXPECT_TRUE(waitForTimelines(1));
    EXPECT_TRUE(shown[1].back().isRefreshing);
    EXPECT_TRUE(waitForTimelines(2));
    EXPECT_FALSE(shown[1].back().isRefreshing);
}

TEST_F(ScheduleTest, aWidgetThatIsRemovedIsNeitherShownNorAskedFor)
{
    schedule.add(1, clock);
    schedule.remove(1);
    EXPECT_FALSE(test::waitFor([&] { return !shown.empty(); }, 200ms));
    EXPECT_TRUE(staysAt(0));
}

TEST_F(ScheduleTest, whenAllAreRemovedTheQuestionThatWaitsIsDropped)
{
    schedule.add(1, clock);
    EXPECT_TRUE(waitForTimelines(1));
    schedule.refresh(1);
    schedule.remove(1);
    EXPECT_TRUE(staysAt(1));
    schedule.add(2, moon);
    EXPECT_TRUE(waitForTimelines(2));
    EXPECT_FALSE(shown[2].empty());
}

TEST(HurriedTimeline, manyEntriesAMillisecondApartCostNoMoreThanAFew)
{
    const test::FakeExtension extension{"hurried"};
    ExtensionProcess process{extension.program(), quick};
    std::vector<Date> shown;
    Schedule schedule{process, [&](int, const ShownEntry& content) { shown.push_back(content.entry.date); }};
    schedule.add(1, clock);
    ASSERT_TRUE(test::waitFor([&] { return !extension.events("widgets.timelines").empty(); }));
    const Date asked = Clock::now();
    EXPECT_TRUE(test::waitFor([&] { return !shown.empty() && shown.back() > asked + 1s; }));
    EXPECT_LT(shown.size(), 12U);
    EXPECT_TRUE(test::waitFor([&] { return Clock::now() > asked + 3s; }));
    EXPECT_LT(shown.size(), 12U);
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

TEST_F(SharedTurnScheduleTest, theSourcesAreAskedInTurnWithTheUsersOtherPrograms)
{
    auto others = SharedTurn::take(turn, 1s);
    ASSERT_TRUE(others);
    paced.add(1, clock);
    EXPECT_TRUE(test::waitFor([&] { return !shownPaced.empty(); })) << "the placeholder needs no turn";
    EXPECT_TRUE(staysAt(0));
    others.reset();
    EXPECT_TRUE(test::waitFor([&] {
        moveClock(100ms);
        return questions().size() == 1;
    }));
    EXPECT_TRUE(waitForTimelines(1));
    EXPECT_FALSE(SharedTurn::take(turn, 1h)) << "the others rest after it, too";
}

TEST_F(SharedTurnScheduleTest, aTurnThatNeverComesIsNotWaitedForLong)
{
    const auto others = SharedTurn::take(turn, 1s);
    paced.add(1, clock);
    ASSERT_TRUE(test::waitFor([&] { return !shownPaced.empty(); }));
    moveClock(19s);
    EXPECT_TRUE(staysAt(0));
    moveClock(2s);
    EXPECT_TRUE(waitForTimelines(1));
}

} // namespace skyvane
