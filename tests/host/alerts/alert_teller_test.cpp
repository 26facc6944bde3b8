#include "host/alerts/alert_teller.h"

#include "desk/alerts/alert_choices_file.h"
#include "platform/pinned.h"
#include "platform/text/unicode.h"
#include "tests/session/fake_notification_service.h"
#include "tests/session/journal.h"
#include "tests/session/private_bus.h"
#include "tests/session/wait_for.h"
#include "tests/support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace skyvane {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

/// A time that no real timer reaches, so that only the test moves the clock.
constexpr Date future{std::chrono::sys_days{std::chrono::year{2100} / 1 / 1} + 12h};

class AlertTellerTest : public testing::Test {
protected:
    AlertTellerTest() { start(); }

    void start()
    {
        teller.reset();
        teller.emplace(
            AlertSetup{
                .choices = folder.path() / "alerts.json",
                .told = folder.path() / "told.json",
                .open
                = [this](const URL& url,
                      const QString& token) { opened.push_back(url.text() + "|" + token.toStdString()); },
            },
            session.connection(), session.connection(), [this] { ++rulesChanged; });
    }

    void choose(const AlertChoices& choices) const
    {
        AlertChoicesFile::write(folder.path() / "alerts.json", choices);
    }

    static Alert alert(const std::string& id, Date at = future)
    {
        return {.id = id,
            .at = at,
            .title = "Title of " + id,
            .body = "Body",
            .url = URL::parse("skyvane://aircraft/" + id)};
    }

    bool hasShown(std::size_t count)
    {
        return test::waitFor([&] { return service.shown.size() == count; }) && staysAt(count);
    }
    bool staysAt(std::size_t count) const
    {
        return !test::waitFor([&] { return service.shown.size() != count; }, 150ms);
    }

    test::Journal journal;
    test::PrivateBus session;
    test::ScratchFolder folder;
    test::FakeNotificationService service{session.other()};
    std::vector<std::string> opened;
    int rulesChanged = 0;
    std::optional<Pinned<Date>> now{std::in_place, future};
    std::optional<AlertTeller> teller;
};

} // namespace

TEST_F(AlertTellerTest, tellsWhatIsDueNow)
{
    teller->take({alert("a")});
    ASSERT_TRUE(hasShown(1));
    EXPECT_EQ(service.shown[0].title, "Title of a");
    EXPECT_EQ(service.shown[0].body, "Body");
}

TEST_F(AlertTellerTest, tellsOfAnIdentityOnceInHalfAnHour)
{
    teller->take({alert("a"), alert("a")});
    ASSERT_TRUE(hasShown(1));
    teller->take({alert("a")});
    EXPECT_TRUE(staysAt(1));
    now.emplace(future + 30min);
    teller->take({alert("a", future + 30min)});
    EXPECT_TRUE(hasShown(2));
}

TEST_F(AlertTellerTest, tellsNothingTwiceAfterARestart)
{
    teller->take({alert("a")});
    ASSERT_TRUE(hasShown(1));
    start();
    teller->take({alert("a"), alert("b")});
    ASSERT_TRUE(hasShown(2));
    EXPECT_EQ(service.shown[1].title, "Title of b");
}

TEST_F(AlertTellerTest, tellsOfThreeAtOnceAndHowManyMoreThereAre)
{
    std::vector<Alert> seven;
    for (const char* id : {"a", "b", "c", "d", "e", "f", "g"})
        seven.push_back(alert(id));
    teller->take(seven);
    ASSERT_TRUE(hasShown(3));
    EXPECT_EQ(service.shown[0].title, "Title of a");
    EXPECT_EQ(service.shown[1].body, "Body");
    EXPECT_EQ(service.shown[2].body, "Body\nand 4 more");
    teller->take(seven);
    EXPECT_TRUE(staysAt(3));
}

TEST_F(AlertTellerTest, threeAreThreeAndNoMore)
{
    teller->take({alert("a"), alert("b"), alert("c")});
    ASSERT_TRUE(hasShown(3));
    EXPECT_EQ(service.shown[2].body, "Body");
}

TEST_F(AlertTellerTest, waitsForTheMomentThatWasAnnounced)
{
    now.reset(); // The real clock, for a real timer.
    const Date soon = Clock::now() + 1s;
    teller->take({alert("a", soon)});
    EXPECT_TRUE(staysAt(0));
    EXPECT_TRUE(hasShown(1));
    EXPECT_GE(Clock::now(), soon);
}

TEST_F(AlertTellerTest, tellsOfMomentsThatAreNearTogetherAtOnce)
{
    teller->take({alert("a"), alert("b", future + 30s), alert("c", future + 31s)});
    EXPECT_TRUE(hasShown(2));
}

TEST_F(AlertTellerTest, aNewAnswerTakesThePlaceOfWhatWasToCome)
{
    teller->take({alert("a", future + 2min)});
    teller->take({alert("b")});
    now.emplace(future + 2min);
    teller->take({});
    ASSERT_TRUE(hasShown(1));
    EXPECT_EQ(service.shown[0].title, "Title of b");
}

TEST_F(AlertTellerTest, whatIsOutOfDateIsNotTold)
{
    teller->take({alert("a", future - 61s)});
    EXPECT_TRUE(staysAt(0));
    teller->take({alert("a", future - 59s)});
    EXPECT_TRUE(hasShown(1));
}

TEST_F(AlertTellerTest, isSilentInQuietHoursAndTellsAfterThemWhatStillHolds)
{
    choose({.emergency = true, .isQuiet = true, .quietHours = {.from = QTime{11, 0}, .until = QTime{13, 0}}});
    ASSERT_TRUE(test::waitFor([&] { return rulesChanged == 1; }));
    teller->take({alert("a")});
    EXPECT_TRUE(staysAt(0));
    now.emplace(future + 1h);
    teller->take({alert("a", future + 1h)});
    EXPECT_TRUE(hasShown(1));
}

TEST_F(AlertTellerTest, isSilentWhileNotificationsAreInhibited)
{
    service.isInhibited = true;
    teller->take({alert("a")});
    EXPECT_TRUE(staysAt(0));
    service.isInhibited = false;
    teller->take({alert("a")});
    EXPECT_TRUE(hasShown(1));
}

TEST_F(AlertTellerTest, aClickOpensTheLinkWithItsToken)
{
    Alert elsewhere = alert("c");
    elsewhere.url = URL::parse("https://example.org/");
    teller->take({alert("a"), alert("b"), elsewhere});
    ASSERT_TRUE(hasShown(3));
    service.click(2, "token7");
    service.click(3, {});
    service.click(1, {});
    EXPECT_TRUE(test::waitFor([&] { return opened.size() == 2; }));
    EXPECT_THAT(opened, ElementsAre("skyvane://aircraft/b|token7", "skyvane://aircraft/a|"));
}

TEST_F(AlertTellerTest, theRulesAreThoseOfTheFile)
{
    EXPECT_EQ(teller->rules(), std::nullopt);
    choose({.military = true});
    ASSERT_TRUE(test::waitFor([&] { return rulesChanged == 1; }));
    EXPECT_EQ(teller->rules(), AlertRules{.military = true});
}

TEST_F(AlertTellerTest, aPassIsNotToldOnceNobodyWantsToKnowOfAny)
{
    choose({.overhead = true});
    ASSERT_TRUE(test::waitFor([&] { return rulesChanged == 1; }));
    teller->take({alert("a", future + 2min)});
    choose({.military = true});
    ASSERT_TRUE(test::waitFor([&] { return rulesChanged == 2; }));
    now.emplace(future + 2min);
    choose({.overhead = true});
    ASSERT_TRUE(test::waitFor([&] { return rulesChanged == 3; }));
    EXPECT_TRUE(staysAt(0));
}

TEST_F(AlertTellerTest, textsOfAnyExtensionAreShortAndOfOneLine)
{
    Alert absurd = alert("a");
    absurd.title = "a\nb" + std::string(10'000, 'x');
    absurd.body = std::string(10'000, 'y');
    teller->take({absurd});
    ASSERT_TRUE(hasShown(1));
    EXPECT_EQ(Unicode::characters(service.shown[0].title).size(), 256U);
    EXPECT_EQ(Unicode::characters(service.shown[0].body).size(), 256U);
    EXPECT_THAT(service.shown[0].title, testing::StartsWith("a bx"));
}

} // namespace skyvane
