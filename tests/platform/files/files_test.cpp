#include "platform/files/files.h"

#include "tests/support/scratch_folder.h"

#include "platform/pinned.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <string>

namespace skyvane {
namespace {

constexpr std::size_t limit = 100;

class FilesTest : public testing::Test {
protected:
    test::ScratchFolder scratch{};
    std::filesystem::path file{scratch.path() / "file"};

    void put(const std::string& bytes) const { std::ofstream{file} << bytes; }

    auto filesInFolder() const
    {
        return std::distance(
            std::filesystem::directory_iterator{scratch.path()}, std::filesystem::directory_iterator{});
    }
};

TEST_F(FilesTest, theHomeFolderIsThePinnedOne)
{
    const Pinned<HomeFolder> home{{"/elsewhere"}};
    EXPECT_EQ(Files::homeFolder(), "/elsewhere");
}

TEST_F(FilesTest, readsAWholeFile)
{
    put(std::string("a\0b\n", 4));
    EXPECT_EQ(Files::read(file, limit), std::string("a\0b\n", 4));
    put("");
    EXPECT_EQ(Files::read(file, limit), "");
}

TEST_F(FilesTest, aFileAtTheLimitIsReadAndALargerOneIsAbsent)
{
    put(std::string(limit, 'x'));
    EXPECT_EQ(Files::read(file, limit), std::string(limit, 'x'));
    put(std::string(limit + 1, 'x'));
    EXPECT_FALSE(Files::read(file, limit));
}

TEST_F(FilesTest, aSparseFileOfAGigabyteIsAbsentAtOnce)
{
    put("x");
    std::filesystem::resize_file(file, 1UL << 30);
    EXPECT_FALSE(Files::read(file, limit));
}

TEST_F(FilesTest, whatIsNoRegularFileIsAbsentWithoutWaiting)
{
    EXPECT_FALSE(Files::read(file, limit));
    EXPECT_FALSE(Files::read(scratch.path(), limit));
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_FALSE(Files::read(file, limit));
}

TEST_F(FilesTest, aLinkToItselfIsAbsent)
{
    std::filesystem::create_symlink(file, file);
    EXPECT_FALSE(Files::read(file, limit));
}

TEST_F(FilesTest, writingReplacesTheFileAndLeavesNothingBesideIt)
{
    EXPECT_TRUE(Files::writeAtomically(file, "old and long"));
    EXPECT_TRUE(Files::writeAtomically(file, "new"));
    EXPECT_EQ(Files::read(file, limit), "new");
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(FilesTest, writingIntoAMissingFolderFails)
{
    EXPECT_FALSE(Files::writeAtomically(scratch.path() / "missing" / "file", "x"));
}

TEST_F(FilesTest, writingOverAFolderFailsAndLeavesNothingBesideIt)
{
    std::filesystem::create_directory(file);
    std::ofstream{file / "inside"} << "kept";
    EXPECT_FALSE(Files::writeAtomically(file, "x"));
    EXPECT_TRUE(std::filesystem::exists(file / "inside"));
    EXPECT_EQ(filesInFolder(), 1);
}

} // namespace
} // namespace skyvane
