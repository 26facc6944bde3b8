#include "desk/file_watch.h"

#include "tests/session/wait_for.h"
#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace skyvane {

namespace {

using namespace std::chrono_literals;

class FileWatchTest : public testing::Test {
protected:
    void write(const std::string& text) const
    {
        std::filesystem::create_directories(file.parent_path());
        std::ofstream{file} << text;
    }

    /// Whether exactly one change is told.
    bool isTold()
    {
        const bool isTold = test::waitFor([&] { return changes == 1; });
        changes = 0;
        return isTold && !test::waitFor([&] { return changes > 0; }, 150ms);
    }

    test::ScratchFolder home;
    std::filesystem::path file = home.path() / "Library/Skyvane/widget-config.json";
    int changes = 0;
};

} // namespace

TEST_F(FileWatchTest, aFileThatAppearsWithItsFoldersIsTold)
{
    const FileWatch watch{file, [&] { ++changes; }, 50ms};
    write("{}");
    EXPECT_TRUE(isTold());
    write("{ }");
    EXPECT_TRUE(isTold());
}

TEST_F(FileWatchTest, aFileThatIsReplacedInOneStepIsToldEachTime)
{
    write("{}");
    const FileWatch watch{file, [&] { ++changes; }, 50ms};
    for (const char* text : {"{ }", "{  }", "{   }"}) {
        std::ofstream{file.string() + ".new"} << text;
        std::filesystem::rename(file.string() + ".new", file);
        EXPECT_TRUE(isTold()) << text;
    }
}

TEST_F(FileWatchTest, aFolderThatGoesAndComesBackIsTold)
{
    write("{}");
    const FileWatch watch{file, [&] { ++changes; }, 50ms};
    std::filesystem::remove_all(home.path() / "Library");
    EXPECT_TRUE(isTold());
    write("{}");
    EXPECT_TRUE(isTold());
}

TEST_F(FileWatchTest, otherFilesOfTheFolderAreNobodysBusiness)
{
    write("{}");
    const FileWatch watch{file, [&] { ++changes; }, 20ms};
    std::ofstream{file.parent_path() / "other"} << "x";
    EXPECT_FALSE(test::waitFor([&] { return changes > 0; }, 200ms));
}

} // namespace skyvane
