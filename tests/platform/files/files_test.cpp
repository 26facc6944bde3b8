#include "platform/files/files.h"

#include "tests/support/namespaces.h"
#include "tests/support/scratch_folder.h"

#include "platform/pinned.h"

#include <gtest/gtest.h>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
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

    static auto modeOf(const std::filesystem::path& path)
    {
        return std::filesystem::status(path).permissions();
    }

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

TEST_F(FilesTest, theUserDatabaseKnowsTheHomeFolderBetterThanTheEnvironment)
{
    const char* const before = std::getenv("HOME");
    const std::string home = before != nullptr ? before : "";
    setenv("HOME", "/elsewhere", /*overwrite=*/1);
    const passwd* const user = getpwuid(getuid());
    EXPECT_EQ(Files::homeFolder(), user != nullptr ? user->pw_dir : "/elsewhere");
    if (before != nullptr)
        setenv("HOME", home.c_str(), /*overwrite=*/1);
    else
        unsetenv("HOME");
}

TEST_F(FilesTest, anEmptyHomeFolderInTheUserDatabaseIsNone)
{
    const auto homeOf = [&](const std::string& folder, const char* variable, const char* expected) {
        const std::string user = std::to_string(getuid()) + ":" + std::to_string(getgid());
        put("tester:x:" + user + "::" + folder + ":/bin/sh\n");
        const std::filesystem::path order = scratch.path() / "order";
        std::ofstream{order} << "passwd: files\n";
        test::enterOwnNamespaces(
            {{.path = "/etc/passwd", .standIn = file}, {.path = "/etc/nsswitch.conf", .standIn = order}});
        variable != nullptr ? setenv("HOME", variable, /*overwrite=*/1) : unsetenv("HOME");
        std::_Exit(Files::homeFolder() == expected ? 0 : 1);
    };
    EXPECT_EXIT(homeOf("/home/tester", "/elsewhere", "/home/tester"), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(homeOf("", "/elsewhere", "/elsewhere"), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(homeOf("", "", "/"), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(homeOf("", nullptr, "/"), testing::ExitedWithCode(0), "");
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

TEST_F(FilesTest, writingThroughLinksReplacesWhatTheyLeadTo)
{
    const auto folder = scratch.path() / "elsewhere";
    std::filesystem::create_directory(folder);
    std::filesystem::create_symlink("elsewhere/second", file);
    std::filesystem::create_symlink(folder / "target", folder / "second");
    for (const char* const bytes : {"new where there was nothing", "new"}) {
        EXPECT_TRUE(Files::writeAtomically(file, bytes));
        EXPECT_EQ(Files::read(file, limit), bytes);
        EXPECT_EQ(Files::read(folder / "target", limit), bytes);
        EXPECT_TRUE(std::filesystem::is_symlink(file) && std::filesystem::is_symlink(folder / "second"));
        EXPECT_FALSE(std::filesystem::is_symlink(folder / "target"));
    }
    EXPECT_EQ(filesInFolder(), 2);
}

TEST_F(FilesTest, aLinkThatLeadsToItselfIsReplaced)
{
    std::filesystem::create_symlink(file, file);
    EXPECT_TRUE(Files::writeAtomically(file, "x"));
    EXPECT_EQ(Files::read(file, limit), "x");
}

TEST_F(FilesTest, writingKeepsTheModeOfTheFile)
{
    using std::filesystem::perms;
    EXPECT_TRUE(Files::writeAtomically(file, "new"));
    EXPECT_EQ(modeOf(file), perms::owner_read | perms::owner_write);
    for (const perms mode : {perms::owner_read | perms::owner_write | perms::group_read | perms::others_read,
             perms::owner_read | perms::owner_write | perms::group_read | perms::group_write}) {
        std::filesystem::permissions(file, mode);
        EXPECT_TRUE(Files::writeAtomically(file, "newer"));
        EXPECT_EQ(modeOf(file), mode);
    }
}

TEST_F(FilesTest, writingIntoAMissingFolderFails)
{
    EXPECT_FALSE(Files::writeAtomically(scratch.path() / "missing" / "file", "x"));
}

TEST_F(FilesTest, whatAKilledWriterLeftIsRemovedOnceItIsOld)
{
    using namespace std::chrono_literals;
    const auto make = [&](const char* name, std::chrono::minutes age) {
        std::ofstream{scratch.path() / name} << "draft";
        std::filesystem::last_write_time(
            scratch.path() / name, std::filesystem::file_time_type::clock::now() - age);
    };
    const auto isThere = [&](const char* name) { return std::filesystem::exists(scratch.path() / name); };
    put("kept");
    make(".file.aB3xYz", 2min);
    make(".file.Q9wErt", 2min);
    make(".file.young1", 0min);
    for (const char* others : {".file.short", ".file.longest", ".other.aB3xYz", "file.aB3xYz", ".file"})
        make(others, 2min);
    std::filesystem::create_symlink("file", scratch.path() / ".file.linked");
    Files::removeAbandonedDrafts(file);
    EXPECT_FALSE(isThere(".file.aB3xYz"));
    EXPECT_FALSE(isThere(".file.Q9wErt"));
    for (const char* kept : {"file", ".file.young1", ".file.short", ".file.longest", ".other.aB3xYz",
             "file.aB3xYz", ".file", ".file.linked"})
        EXPECT_TRUE(isThere(kept)) << kept;
}

TEST_F(FilesTest, draftsAreRemovedWhereALinkLeads)
{
    std::filesystem::create_directory(scratch.path() / "there");
    std::filesystem::create_symlink("there/file", file);
    const auto draft = scratch.path() / "there/.file.aB3xYz";
    std::ofstream{draft} << "draft";
    std::filesystem::last_write_time(
        draft, std::filesystem::file_time_type::clock::now() - std::chrono::hours{1});
    Files::removeAbandonedDrafts(file);
    EXPECT_FALSE(std::filesystem::exists(draft));
    Files::removeAbandonedDrafts(scratch.path() / "missing" / "file");
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
