#include "host/extension/process.h"

#include "tests/host/extension/fake_extension.h"
#include "tests/session/journal.h"
#include "tests/session/wait_for.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

const WidgetTarget clock{.kind = "org.example.clock", .family = WidgetFamily::small};

constexpr ExtensionPace quick{
    .betweenTimelines = 250ms, .idle = 10s, .firstBackOff = 100ms, .longestBackOff = 400ms};

/// Counts answers and failures.
struct Tally {
    int answers = 0;
    int failures = 0;

    void askTimeline(ExtensionProcess& process)
    {
        process.ask(Protocol::TimelineCall{.params = clock},
            [this](const std::optional<WidgetTimeline>& timeline) { ++(timeline ? answers : failures); });
    }
};

/// What the journal says when one question fails.
std::vector<std::string> journalOf(const ExtensionProgram& program)
{
    const test::Journal journal;
    ExtensionProcess process{program, quick};
    Tally tally;
    tally.askTimeline(process);
    EXPECT_TRUE(test::waitFor([&] { return tally.failures == 1; }));
    return test::Journal::lines();
}

std::vector<std::string> journalOf(const std::string& behaviour)
{
    return journalOf(test::FakeExtension{behaviour}.program());
}

} // namespace

TEST(ExtensionProcess, startsOnlyWhenAsked)
{
    const test::FakeExtension extension{"good"};
    ExtensionProcess process{extension.program()};
    QCoreApplication::processEvents();
    EXPECT_TRUE(extension.events("start").empty());
    std::optional<std::size_t> count;
    process.ask(Protocol::ListCall{}, [&](const auto& list) { count = list.value().widgets.size(); });
    EXPECT_TRUE(test::waitFor([&] { return count.has_value(); }));
    EXPECT_EQ(count, 2U);
    EXPECT_EQ(extension.events("start").size(), 1U);
}

TEST(ExtensionProcess, answersAreMatchedByTheirIds)
{
    const test::FakeExtension extension{"reversing"};
    ExtensionProcess process{extension.program()};
    std::vector<std::string> order;
    process.ask(Protocol::PlaceholderCall{.params = clock},
        [&](const auto& found) { order.push_back(found->entry.isSample ? "first strange" : "first"); });
    process.ask(Protocol::SnapshotCall{.params = {.target = clock, .isPreview = true}},
        [&](const auto& found) { order.push_back(found->entry.isSample ? "second strange" : "second"); });
    EXPECT_TRUE(test::waitFor([&] { return order.size() == 2; }));
    EXPECT_THAT(order, ElementsAre("second strange", "first"));
}

TEST(ExtensionProcess, timelinesKeepTheirDistanceAndHoldNothingElseUp)
{
    const test::FakeExtension extension{"good"};
    ExtensionProcess process{extension.program(), quick};
    bool isRunning = false;
    process.ask(Protocol::ListCall{}, [&](const auto&) { isRunning = true; });
    EXPECT_TRUE(test::waitFor([&] { return isRunning; }));
    Tally tally;
    int placeholders = 0;
    for (int widget = 0; widget < 3; ++widget)
        tally.askTimeline(process);
    process.ask(Protocol::PlaceholderCall{.params = clock},
        [&](const auto&) { placeholders += tally.answers < 3 ? 1 : 0; });
    EXPECT_TRUE(test::waitFor([&] { return tally.answers == 3; }));
    EXPECT_EQ(placeholders, 1);
    const auto asked = extension.events("widgets.timeline");
    ASSERT_EQ(asked.size(), 3U);
    const auto between = asked[2].at - asked[0].at;
    EXPECT_GT(between, quick.betweenTimelines) << between.count();
}

TEST(ExtensionProcess, aCallThatIsMadeInTurnIsMadeOnceAndNotBefore)
{
    const test::FakeExtension extension{"good"};
    ExtensionProcess process{extension.program(), quick};
    Tally tally;
    tally.askTimeline(process);
    EXPECT_TRUE(test::waitFor([&] { return tally.answers == 1; }));
    int made = 0;
    std::string what;
    const auto make = [&] {
        ++made;
        return std::optional{Protocol::TimelinesCall{.params = {.widgets = {{what, WidgetFamily::small}}}}};
    };
    std::optional<std::size_t> count;
    process.askInTurn<Protocol::TimelinesCall>(
        make, [&](const auto& answer) { count = answer.value().timelines.size(); });
    EXPECT_EQ(made, 0);
    what = "org.example.wanted-by-now";
    EXPECT_TRUE(test::waitFor([&] { return count.has_value(); }));
    EXPECT_EQ(made, 1);
    EXPECT_EQ(count, 1U);
    const auto asked = extension.events("widgets.timeline");
    ASSERT_EQ(asked.size(), 2U);
    EXPECT_THAT(asked[1].what, testing::HasSubstr(what));
    EXPECT_GE(asked[1].at - asked[0].at, quick.betweenTimelines / 2);
}

TEST(ExtensionProcess, aCallThatIsNotWantedAfterAllHoldsNobodyUp)
{
    const test::FakeExtension extension{"good"};
    ExtensionPace pace = quick;
    pace.betweenTimelines = 1h;
    pace.idle = 50ms;
    ExtensionProcess process{extension.program(), pace};
    std::vector<std::string> order;
    process.askInTurn<Protocol::TimelinesCall>([] { return std::optional<Protocol::TimelinesCall>{}; },
        [&](const auto& answer) { order.emplace_back(answer ? "an answer" : "none"); });
    Tally tally;
    tally.askTimeline(process);
    EXPECT_TRUE(test::waitFor([&] { return tally.answers == 1; }));
    EXPECT_THAT(order, ElementsAre("none"));
    EXPECT_TRUE(test::waitFor([&] { return extension.events("end").size() == 1; }));
}

TEST(ExtensionProcess, endsWhenIdleAndStartsAfreshWhenAsked)
{
    const test::FakeExtension extension{"good"};
    ExtensionPace pace = quick;
    pace.idle = 50ms;
    pace.grace = 20s;
    ExtensionProcess process{extension.program(), pace};
    Tally tally;
    tally.askTimeline(process);
    EXPECT_TRUE(test::waitFor([&] { return extension.events("end").size() == 1; }));
    EXPECT_EQ(tally.answers, 1);
    tally.askTimeline(process);
    EXPECT_TRUE(test::waitFor([&] { return tally.answers == 2; }));
    EXPECT_EQ(extension.events("start").size(), 2U);
}

TEST(ExtensionProcess, everyKindOfFailureIsOneLineInTheJournal)
{
    EXPECT_THAT(journalOf("crashing"), ElementsAre("the widget extension crashed"));
    EXPECT_THAT(journalOf("ending"), ElementsAre("the widget extension ended without an answer"));
    EXPECT_THAT(journalOf("silent"), ElementsAre("the widget extension did not answer within 0.2 s"));
    EXPECT_THAT(
        journalOf("babbling"), ElementsAre(testing::StartsWith("the widget extension answered nonsense: ")));
    EXPECT_THAT(journalOf("misnumbering"),
        ElementsAre("the widget extension answered nonsense: id: is that of no request"));
    EXPECT_THAT(journalOf("mistyping"),
        ElementsAre(testing::StartsWith("the widget extension answered nonsense: entries[0].date: ")));
    EXPECT_THAT(journalOf("huge"), ElementsAre("the widget extension's answer is larger than 4352 KiB"));
    EXPECT_THAT(journalOf("endless"), ElementsAre("the widget extension's answer is larger than 4352 KiB"));
    EXPECT_THAT(journalOf("refusing"), ElementsAre("the widget extension refused: no such kind"));
    EXPECT_THAT(journalOf(ExtensionProgram{.path = "/nowhere/extension"}),
        ElementsAre("the widget extension cannot be started: /nowhere/extension"));
}

TEST(ExtensionProcess, restartsBackOffAndTheJournalStaysQuiet)
{
    const test::Journal journal;
    const test::FakeExtension extension{"crashing"};
    ExtensionProcess process{extension.program(), quick};
    Tally tally;
    for (int attempt = 1; attempt <= 4; ++attempt) {
        tally.askTimeline(process);
        EXPECT_TRUE(test::waitFor([&] { return tally.failures == attempt; }));
    }
    const auto starts = extension.events("start");
    ASSERT_EQ(starts.size(), 4U);
    EXPECT_GE(starts[1].at - starts[0].at, 100ms);
    EXPECT_GE(starts[2].at - starts[1].at, 200ms);
    EXPECT_GE(starts[3].at - starts[2].at, 400ms);
    EXPECT_THAT(test::Journal::lines(),
        ElementsAre("the widget extension crashed",
            testing::StartsWith("the widget extension stops at each request")));
}

TEST(ExtensionProcess, oneThatStopsAtEachRequestIsKnownToUntilItAnswersTheFeed)
{
    const test::Journal journal;
    const test::FakeExtension extension{"crashing-twice"};
    ExtensionProcess process{extension.program(), quick};
    Tally tally;
    std::vector<bool> isKnown;
    for (int attempt = 1; attempt <= 3; ++attempt) {
        tally.askTimeline(process);
        EXPECT_TRUE(test::waitFor([&] { return tally.failures + tally.answers == attempt; }));
        isKnown.push_back(process.stopsAtEachRequest());
    }
    EXPECT_EQ(tally.answers, 1);
    EXPECT_THAT(isKnown, ElementsAre(false, true, false));
}

TEST(ExtensionProcess, oneThatIsMissingFailsEverythingThatWaits)
{
    const test::Journal journal;
    ExtensionProcess process{{.path = "/nowhere/extension"}, quick};
    Tally tally;
    tally.askTimeline(process);
    EXPECT_TRUE(test::waitFor([&] { return tally.failures == 1; }));
    tally.askTimeline(process);
    tally.askTimeline(process);
    EXPECT_EQ(tally.failures, 1);
    EXPECT_TRUE(test::waitFor([&] { return tally.failures == 3; }));
}

TEST(ExtensionProcess, aRefusalCostsTheOthersNothing)
{
    const test::Journal journal;
    const test::FakeExtension extension{"refusing"};
    ExtensionProcess process{extension.program(), quick};
    Tally tally;
    tally.askTimeline(process);
    tally.askTimeline(process);
    EXPECT_TRUE(test::waitFor([&] { return tally.failures == 2; }));
    EXPECT_EQ(extension.events("start").size(), 1U);
}

} // namespace skyvane
