#include "host/alerts/told_alerts.h"

#include "platform/files/files.h"
#include "tests/session/journal.h"
#include "tests/support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace skyvane {

namespace {

using namespace std::chrono_literals;

constexpr Date noon{std::chrono::sys_days{std::chrono::year{2026} / 11 / 22} + 12h};

class ToldAlertsTest : public testing::Test {
protected:
    test::Journal journal;
    test::ScratchFolder folder;
    std::filesystem::path file = folder.path() / "state/skyvane/told.json";
};

} // namespace

TEST_F(ToldAlertsTest, areRememberedForHalfAnHour)
{
    ToldAlerts told{file};
    EXPECT_FALSE(told.has("a", noon));
    told.add({"a"}, noon);
    EXPECT_TRUE(told.has("a", noon));
    EXPECT_TRUE(told.has("a", noon + 30min - 1ms));
    EXPECT_FALSE(told.has("a", noon + 30min));
    EXPECT_FALSE(told.has("b", noon));
}

TEST_F(ToldAlertsTest, areRememberedAfterARestart)
{
    ToldAlerts{file}.add({"a", "b\"\n"}, noon);
    ToldAlerts again{file};
    EXPECT_TRUE(again.has("a", noon + 10min));
    EXPECT_TRUE(again.has("b\"\n", noon + 10min));
    EXPECT_FALSE(again.has("a", noon + 31min));
}

TEST_F(ToldAlertsTest, areForgottenWhenTheirTimeIsOver)
{
    ToldAlerts told{file};
    told.add({"past"}, noon);
    told.add({"new"}, noon + 31min);
    const std::string text = Files::read(file, 1'000).value();
    EXPECT_THAT(text, testing::Not(testing::HasSubstr("past")));
    EXPECT_THAT(text, testing::HasSubstr("new"));
}

TEST_F(ToldAlertsTest, aClockThatWasSetBackSilencesNothingForEver)
{
    ToldAlerts told{file};
    told.add({"a"}, noon + 24h);
    EXPECT_FALSE(told.has("a", noon));
}

TEST_F(ToldAlertsTest, aBrokenFileIsNoMemory)
{
    std::filesystem::create_directories(file.parent_path());
    for (const char* text :
        {"", "{", "[]", R"({"version":2,"told":[{"id":"a","at":1}]})", R"({"version":1,"told":[3]})"}) {
        std::ofstream{file} << text;
        EXPECT_FALSE(ToldAlerts{file}.has("a", noon)) << text;
    }
}

TEST_F(ToldAlertsTest, soManyAreRememberedAndNoMore)
{
    ToldAlerts told{file};
    std::vector<std::string> ids;
    for (std::size_t index = 0; index < ToldAlerts::most + 10; ++index)
        ids.push_back(std::to_string(index));
    told.add(ids, noon);
    EXPECT_TRUE(told.has(ids[ToldAlerts::most - 1], noon));
    EXPECT_FALSE(told.has(ids[ToldAlerts::most], noon));
}

TEST_F(ToldAlertsTest, withoutARoomForTheFileTheJournalSaysSo)
{
    std::ofstream{folder.path() / "state"} << "a file where a folder should be";
    ToldAlerts told{file};
    told.add({"a"}, noon);
    EXPECT_TRUE(told.has("a", noon));
    EXPECT_THAT(test::Journal::lines(), testing::ElementsAre(file.string() + " cannot be written"));
}

TEST_F(ToldAlertsTest, nothingIsWrittenUntilSomethingIsTold)
{
    ToldAlerts told{file};
    EXPECT_FALSE(told.has("a", noon));
    EXPECT_FALSE(std::filesystem::exists(file));
}

} // namespace skyvane
