#include "core/config/shared_state.h"

#include "platform/files/files.h"
#include "platform/pinned.h"
#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <fstream>
#include <limits>
#include <string>

namespace skyvane {
namespace {

using SharedState::Config;

const Config minimal{.home = {.latitude = 1, .longitude = 2, .label = "X"}, .radiusNM = 10};

class SharedStateTest : public testing::Test {
protected:
    test::ScratchFolder scratch{};
    Pinned<HomeFolder> home{{scratch.path()}};
    std::filesystem::path file{scratch.path() / "Library/Application Support/Skyvane/widget-config.json"};

    void put(const std::string& json) const
    {
        std::filesystem::create_directories(file.parent_path());
        std::ofstream{file} << json;
    }

    std::string stored() const { return Files::read(file, 10000).value_or("no file"); }
};

TEST_F(SharedStateTest, theFolderIsInTheUsersHomeAndNotCreatedByLooking)
{
    EXPECT_EQ(SharedState::directory(), scratch.path() / "Library/Application Support/Skyvane");
    EXPECT_FALSE(SharedState::read());
    EXPECT_FALSE(std::filesystem::exists(scratch.path() / "Library"));
}

TEST_F(SharedStateTest, aFileWithOnlyTheRequiredKeysHasNoUnitAndNoColour)
{
    put(R"({"home":{"latitude":1,"longitude":2,"label":"X"},"radiusNM":10})");
    EXPECT_EQ(SharedState::read(), minimal);
}

TEST_F(SharedStateTest, aNullUnitIsTheSameAsAMissingOne)
{
    put(R"({"home":{"latitude":1,"longitude":2,"label":"X"},"radiusNM":10,"distanceUnit":null,"widgetColorHex":null})");
    EXPECT_EQ(SharedState::read(), minimal);
}

TEST_F(SharedStateTest, unknownKeysAndOrderCarryNoMeaning)
{
    put(R"({"widgetColorHex":"#fff","x":[1],"radiusNM":1e1,"home":{"label":"X","longitude":2,"y":{},"latitude":1},"distanceUnit":"km"})");
    const Config expected{
        .home = minimal.home, .radiusNM = 10, .distanceUnit = "km", .widgetColorHex = "#fff"};
    EXPECT_EQ(SharedState::read(), expected);
}

TEST_F(SharedStateTest, anythingMissingOrMistypedMakesTheWholeFileAbsent)
{
    for (const char* json : {
             R"({"home":{"latitude":1,"longitude":2},"radiusNM":10})",
             R"({"home":{"latitude":1,"longitude":2,"label":"X"},"radiusNM":"25"})",
             R"({"home":{"latitude":1,"longitude":2,"label":"X"}})",
             R"({"home":{"latitude":true,"longitude":2,"label":"X"},"radiusNM":10})",
             R"({"home":{"latitude":1,"longitude":2,"label":"X"},"radiusNM":10,"distanceUnit":7})",
             R"({"Home":{"latitude":1,"longitude":2,"label":"X"},"radiusNM":10})",
             R"({"home":{"latitude":1,"longitude":2,"label":"X"},"radiusNM":10)",
             R"([])",
             "",
         }) {
        put(json);
        EXPECT_FALSE(SharedState::read()) << json;
    }
}

TEST_F(SharedStateTest, valuesAreNotValidated)
{
    put(R"({"home":{"latitude":123,"longitude":-999,"label":""},"radiusNM":-5})");
    const auto config = SharedState::read();
    ASSERT_TRUE(config);
    EXPECT_EQ(config->radiusNM, -5);
    EXPECT_EQ(config->home, (HomeLocation{.latitude = 123, .longitude = -999, .label = ""}));
}

TEST_F(SharedStateTest, writingCreatesTheWholeChainOfFolders)
{
    SharedState::write(minimal);
    EXPECT_EQ(SharedState::read(), minimal);
}

TEST_F(SharedStateTest, writingLeavesAbsentKeysOutOnOneLineWithoutBlanks)
{
    SharedState::write({.home = {.latitude = 51.5, .longitude = -0.12, .label = "Home"}, .radiusNM = 12.5});
    EXPECT_EQ(stored(), R"({"home":{"latitude":51.5,"longitude":-0.12,"label":"Home"},"radiusNM":12.5})");
}

TEST_F(SharedStateTest, whatIsWrittenIsReadBackEqual)
{
    const Config config{
        .home = {.latitude = 51.5, .longitude = -0.12, .label = "Zuhause \"am\" Fluß\n✈"},
        .radiusNM = 1000,
        .distanceUnit = "nm",
        .widgetColorHex = "#33FF66",
    };
    SharedState::write(config);
    EXPECT_EQ(SharedState::read(), config);
}

TEST_F(SharedStateTest, aConfigurationThatIsALinkStaysOne)
{
    const auto target = scratch.path() / "dotfile.json";
    std::filesystem::create_directories(file.parent_path());
    std::filesystem::create_symlink(target, file);
    SharedState::write(minimal);
    EXPECT_EQ(SharedState::read(), minimal);
    EXPECT_TRUE(std::filesystem::is_symlink(file));
    EXPECT_TRUE(std::filesystem::is_regular_file(target));
}

TEST_F(SharedStateTest, aByteOrderMarkInFrontCarriesNoMeaning)
{
    put("\xEF\xBB\xBF"
        R"({"home":{"latitude":1,"longitude":2,"label":"X"},"radiusNM":10})");
    EXPECT_EQ(SharedState::read(), minimal);
}

TEST_F(SharedStateTest, whatJSONCannotSayLeavesTheOldFile)
{
    SharedState::write(minimal);
    SharedState::write({.home = minimal.home, .radiusNM = std::numeric_limits<double>::infinity()});
    SharedState::write({.home = {.latitude = 1, .longitude = 2, .label = "\xff"}, .radiusNM = 10});
    EXPECT_EQ(SharedState::read(), minimal);
}

TEST_F(SharedStateTest, writingWhereAFileBlocksTheFolderDoesNothing)
{
    std::ofstream{scratch.path() / "Library"} << "in the way";
    SharedState::write(minimal);
    EXPECT_FALSE(SharedState::read());
}

TEST_F(SharedStateTest, clearingRemovesTheFileAndKeepsTheFolder)
{
    SharedState::write(minimal);
    SharedState::clear();
    EXPECT_FALSE(SharedState::read());
    EXPECT_TRUE(std::filesystem::is_directory(SharedState::directory()));
    SharedState::clear();
    EXPECT_FALSE(SharedState::read());
}

} // namespace
} // namespace skyvane
