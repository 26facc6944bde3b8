#include "companion/alerts/alert_store.h"

#include "desk/alerts/alert_choices_file.h"
#include "tests/session/wait_for.h"
#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace skyvane {

namespace {

class AlertStoreTest : public testing::Test {
protected:
    AlertStoreTest()
    {
        QObject::connect(&store, &AlertStore::changed, [this] { ++changes; });
        QObject::connect(&store, &AlertStore::failedToWrite, [this] { ++failures; });
    }

    test::ScratchFolder folder;
    std::filesystem::path file = folder.path() / "skyvane/alerts.json";
    AlertStore store{file};
    int changes = 0;
    int failures = 0;
};

} // namespace

TEST_F(AlertStoreTest, atFirstNothingIsChosenAndNothingWritten)
{
    EXPECT_EQ(store.choices(), AlertChoices{});
    store.choose(AlertChoices{});
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_EQ(changes, 0);
}

TEST_F(AlertStoreTest, aChoiceIsWrittenAtOnce)
{
    store.choose({.military = true});
    EXPECT_EQ(AlertChoicesFile::read(file), AlertChoices{.military = true});
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(failures, 0);
}

TEST_F(AlertStoreTest, whatOthersWriteComesBack)
{
    AlertChoicesFile::write(file, {.emergency = true});
    EXPECT_TRUE(test::waitFor([&] { return changes == 1; }));
    EXPECT_TRUE(store.choices().emergency);
}

TEST_F(AlertStoreTest, whatCannotBeWrittenIsSaidAndKeptHere)
{
    std::ofstream{folder.path() / "skyvane"} << "a file where a folder should be";
    store.choose({.military = true});
    EXPECT_EQ(failures, 1);
    EXPECT_TRUE(store.choices().military);
}

TEST_F(AlertStoreTest, aStarIsAChoice)
{
    const Aircraft aircraft{.hex = "4007f0", .registration = "G-CIVW"};
    store.toggleStar(aircraft);
    EXPECT_TRUE(store.isStarred(aircraft));
    EXPECT_EQ(AlertChoicesFile::read(file).watch, std::vector<std::string>{"G-CIVW"});
    store.toggleStar(aircraft);
    EXPECT_FALSE(store.isStarred(aircraft));
}

} // namespace skyvane
