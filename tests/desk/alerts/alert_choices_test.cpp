#include "desk/alerts/alert_choices_file.h"

#include "tests/support/replaced.h"
#include "tests/support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace skyvane {

namespace {

AlertChoices everything()
{
    return {
        .emergency = true,
        .military = true,
        .overhead = true,
        .elevation = 60,
        .isQuiet = true,
        .quietHours = {.from = QTime{23, 30}, .until = QTime{6, 15}},
        .watch = {"BAW*", "G-CIVW"},
    };
}

} // namespace

TEST(AlertChoicesTest, atFirstNothingIsChosen)
{
    EXPECT_EQ(AlertChoices{}.rules(), std::nullopt);
    EXPECT_FALSE(AlertChoices{}.areQuietAt(QTime{23, 0}));
}

TEST(AlertChoicesTest, eachChoiceIsARule)
{
    EXPECT_EQ(AlertChoices{.emergency = true}.rules(), AlertRules{.emergency = true});
    EXPECT_EQ(AlertChoices{.military = true}.rules(), AlertRules{.military = true});
    EXPECT_EQ((AlertChoices{.overhead = true, .elevation = 60}.rules()),
        (AlertRules{.overhead = OverheadRule{.elevation = 60, .within = 480}}));
    EXPECT_EQ(
        (AlertChoices{.watch = {"BAW*"}}.rules()), (AlertRules{.watch = std::vector<std::string>{"BAW*"}}));
    EXPECT_EQ((AlertChoices{.elevation = 60, .isQuiet = true}.rules()), std::nullopt);
}

TEST(AlertChoicesTest, quietHoursMayEndTheNextDay)
{
    const QuietHours night{.from = QTime{22, 0}, .until = QTime{7, 0}};
    for (const QTime time : {QTime{22, 0}, QTime{23, 59, 59}, QTime{0, 0}, QTime{6, 59, 59}})
        EXPECT_TRUE(night.hold(time)) << time.toString().toStdString();
    for (const QTime time : {QTime{7, 0}, QTime{12, 0}, QTime{21, 59, 59}})
        EXPECT_FALSE(night.hold(time)) << time.toString().toStdString();
    const QuietHours noon{.from = QTime{12, 0}, .until = QTime{14, 0}};
    EXPECT_TRUE(noon.hold(QTime{13, 0}));
    EXPECT_FALSE(noon.hold(QTime{14, 0}));
    EXPECT_FALSE(noon.hold(QTime{2, 0}));
    EXPECT_FALSE((QuietHours{.from = QTime{12, 0}, .until = QTime{12, 0}}.hold(QTime{12, 0})));
}

TEST(AlertChoicesTest, areReadAsTheyWereWritten)
{
    for (const AlertChoices& choices : {AlertChoices{}, everything()})
        EXPECT_EQ(AlertChoices::decoded(choices.encoded()), choices);
}

TEST(AlertChoicesTest, areReadWholeOrNotAtAll)
{
    const std::string good = everything().encoded();
    for (const auto& [part, other] :
        std::vector<std::pair<std::string, std::string>>{{"\"version\": 1", "\"version\": 2"},
            {"\"emergency\": true", "\"emergency\": 1"}, {"\"military\"", "\"militia\""},
            {"\"23:30\"", "\"23:61\""}, {"\"06:15\"", "615"}, {"60", "\"60\""}, {"\"BAW*\"", "7"}})
        EXPECT_EQ(AlertChoices::decoded(test::replaced(good, part, other)), std::nullopt) << part;
    for (const char* text : {"", "[]", "{", "null"})
        EXPECT_EQ(AlertChoices::decoded(text), std::nullopt) << text;
}

TEST(AlertChoicesTest, numbersOutOfBoundsAreBounded)
{
    const std::string good = everything().encoded();
    EXPECT_EQ(AlertChoices::decoded(test::replaced(good, "60", "200")).value().elevation, 90);
    EXPECT_EQ(AlertChoices::decoded(test::replaced(good, "60", "-200")).value().elevation, 10);
    AlertChoices many;
    many.watch.assign(300, "A");
    EXPECT_EQ(AlertChoices::decoded(many.encoded()).value().watch.size(), 200U);
}

TEST(AlertChoicesFileTest, holdsThemWhole)
{
    const test::ScratchFolder folder;
    const auto file = folder.path() / "skyvane/alerts.json";
    EXPECT_EQ(AlertChoicesFile::read(file), AlertChoices{});
    EXPECT_TRUE(AlertChoicesFile::write(file, everything()));
    EXPECT_EQ(AlertChoicesFile::read(file), everything());
    std::ofstream{file} << "{\"version\":1";
    EXPECT_EQ(AlertChoicesFile::read(file), AlertChoices{});
}

TEST(AlertChoicesFileTest, whereNothingCanBeWrittenTheOldOneStands)
{
    const test::ScratchFolder folder;
    std::ofstream{folder.path() / "skyvane"} << "a file where a folder should be";
    EXPECT_FALSE(AlertChoicesFile::write(folder.path() / "skyvane/alerts.json", everything()));
}

TEST(AlertChoicesFileTest, standsBesideTheOtherChoices)
{
    EXPECT_THAT(AlertChoicesFile::standardPath().string(), testing::EndsWith("/.config/skyvane/alerts.json"));
}

} // namespace skyvane
