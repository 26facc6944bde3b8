#include "companion/app/feed_journal.h"

#include "tests/companion/companion_stage.h"
#include "tests/session/journal.h"

#include <gmock/gmock.h>

#include <chrono>
#include <string>

namespace skyvane {

namespace {

using testing::ElementsAre;
using testing::SizeIs;

class FeedJournalTest : public testing::Test {
protected:
    /// Asks once and waits for what comes of it.
    void ask(const std::string& body)
    {
        stage.server.answer("/", {.body = body});
        feed.refresh();
        ASSERT_TRUE(test::waitFor([&] { return !feed.report().isAsking; }));
    }

    test::CompanionStage stage;
    SkyFeed feed{stage.errands, stage.pacer.transport(), std::chrono::seconds{30}};
    test::Journal lines;
    FeedJournal journal{feed};
};

} // namespace

TEST_F(FeedJournalTest, aFailureIsToldOnceHoweverOftenItIsTried)
{
    ask("<html>");
    ask("<html>");
    ASSERT_THAT(test::Journal::lines(), SizeIs(1));
    EXPECT_THAT(test::Journal::lines().front(),
        testing::MatchesRegex("opendata\\.adsb\\.fi: The answer is not JSON\\. \\(not JSON: .+\\)"));
}

TEST_F(FeedJournalTest, anotherFailureIsToldAndOneAfterAnAnswerAgain)
{
    const std::string wrong = R"({"ac":[{"hex":7}]})";
    const std::string wrongIsTold
        = "opendata.adsb.fi: The answer is not what was expected. (ac[0].hex: expected a string, found 7)";
    ask(wrong);
    EXPECT_THAT(test::Journal::lines(), ElementsAre(wrongIsTold));
    ask(test::threeAircraft);
    EXPECT_THAT(test::Journal::lines(), SizeIs(1));
    ask(wrong);
    EXPECT_THAT(test::Journal::lines(), ElementsAre(wrongIsTold, wrongIsTold));
    ask("<html>");
    EXPECT_THAT(test::Journal::lines(), SizeIs(3));
}

} // namespace skyvane
