#include "tests/host/extension/schedule_fixture.h"

namespace skyvane {

namespace {

/// Knows placeholders, and answers no timeline.
class ForgetfulScheduleTest : public ScheduleTest {
protected:
    ForgetfulScheduleTest() : ScheduleTest("forgetful") { }
};

/// Refuses one widget, and with it every question that names it.
class PickyScheduleTest : public ScheduleTest {
protected:
    PickyScheduleTest() : ScheduleTest("picky") { }
};

/// One timeline however many are asked for.
class SparingScheduleTest : public ScheduleTest {
protected:
    SparingScheduleTest() : ScheduleTest("sparing") { }
};

/// The first widget's timeline has no entry.
class HalfEmptyScheduleTest : public ScheduleTest {
protected:
    HalfEmptyScheduleTest() : ScheduleTest("half-empty") { }
};

/// Crashes when it is asked for timelines.
class CrashingScheduleTest : public ScheduleTest {
protected:
    CrashingScheduleTest() : ScheduleTest("crashing-together") { }
};

} // namespace

TEST_F(PickyScheduleTest, aWidgetThatTheExtensionRefusesCostsTheOthersNothing)
{
    schedule.add(1, clock);
    schedule.add(2, {.kind = "org.example.unheard-of", .family = WidgetFamily::small});
    EXPECT_TRUE(waitForTimelines(1));
    EXPECT_THAT(questions()[0].what, testing::Not(testing::HasSubstr("unheard-of")));
    const Pinned<Date> later{future + 1h};
    schedule.lookAtClock();
    EXPECT_TRUE(waitForTimelines(2));
    EXPECT_FALSE(shown[1].back().isStale);
    EXPECT_TRUE(shown[2].empty());
}

TEST_F(ForgetfulScheduleTest, whatIsShownStaysAndIsStaleAfterTwoMisses)
{
    schedule.add(1, clock);
    schedule.add(2, moon);
    EXPECT_TRUE(waitForTimelines(1));
    EXPECT_EQ(test::Journal::lines().size(), 1U);
    ASSERT_EQ(shown[1].size(), 1U);
    EXPECT_FALSE(shown[1].back().isStale);
    const Pinned<Date> later{future + 1h};
    schedule.lookAtClock();
    EXPECT_TRUE(test::waitFor([&] { return shown[1].back().isStale && shown[2].back().isStale; }));
    EXPECT_EQ(questions().size(), 2U);
    EXPECT_EQ(shown[1].size(), 2U);
    EXPECT_EQ(shown[1].front().entry, shown[1].back().entry);
    EXPECT_EQ(test::Journal::lines().size(), 1U);
}

TEST_F(ForgetfulScheduleTest, aPressThatNobodyAnswersIsOverWithItsFailure)
{
    schedule.add(1, clock);
    EXPECT_TRUE(waitForTimelines(1));
    schedule.refresh(1);
    EXPECT_TRUE(shown[1].back().isRefreshing);
    EXPECT_TRUE(waitForTimelines(2));
    EXPECT_FALSE(shown[1].back().isRefreshing);
    EXPECT_TRUE(shown[1].back().isStale);
}

TEST_F(SparingScheduleTest, anAnswerWithAnotherNumberOfTimelinesIsAMiss)
{
    schedule.add(1, clock);
    schedule.add(2, moon);
    EXPECT_TRUE(waitForTimelines(1));
    const Pinned<Date> later{future + 1h};
    schedule.lookAtClock();
    EXPECT_TRUE(waitForTimelines(2));
    EXPECT_TRUE(shown[1].back().isStale && shown[2].back().isStale);
}

TEST_F(HalfEmptyScheduleTest, aTimelineWithoutEntriesIsAMissOfItsWidgetAlone)
{
    schedule.add(1, clock);
    schedule.add(2, moon);
    EXPECT_TRUE(waitForTimelines(1));
    const Pinned<Date> later{future + 1h};
    schedule.lookAtClock();
    EXPECT_TRUE(waitForTimelines(2));
    EXPECT_TRUE(shown[1].back().isStale);
    EXPECT_FALSE(shown[2].back().isStale);
}

TEST_F(CrashingScheduleTest, aCrashCostsOneMissAndIsTriedAgainLater)
{
    schedule.add(1, clock);
    EXPECT_TRUE(test::waitFor([&] { return test::Journal::lines().size() == 1; }));
    EXPECT_TRUE(staysAt(1));
    EXPECT_FALSE(shown[1].back().isStale);
    const Pinned<Date> later{future + 5s};
    schedule.lookAtClock();
    EXPECT_TRUE(test::waitFor([&] { return shown[1].back().isStale; }));
    EXPECT_EQ(questions().size(), 2U);
}

TEST_F(CrashingScheduleTest, aWidgetSaysOfAnExtensionThatItStopsAtEachRequest)
{
    schedule.add(1, clock);
    EXPECT_TRUE(test::waitFor([&] { return test::Journal::lines().size() == 1; }));
    EXPECT_FALSE(shown[1].back().isExtensionStopping);
    const Pinned<Date> later{future + 5s};
    schedule.lookAtClock();
    EXPECT_TRUE(test::waitFor([&] { return shown[1].back().isExtensionStopping; }));
    EXPECT_EQ(test::Journal::lines().size(), 2U);
}

} // namespace skyvane
