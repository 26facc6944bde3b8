#include "platform/files/programs.h"

#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace skyvane {

namespace {

void makeFile(const std::filesystem::path& path)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream{path} << "x";
}

} // namespace

TEST(Programs, theInstalledWidgetsComeFirst)
{
    const test::ScratchFolder folder;
    const auto installed = folder.path() / "libexec/skyvane/skyvane-widgets";
    const auto built = folder.path() / "widgets/extension/skyvane-widgets";
    EXPECT_EQ(Programs::widgets(folder.path() / "bin"), installed);
    makeFile(built);
    EXPECT_EQ(Programs::widgets(folder.path() / "host"), built);
    makeFile(installed);
    EXPECT_EQ(Programs::widgets(folder.path() / "bin"), installed);
}

TEST(Programs, theInstalledDecoderOfPhotographsComesFirst)
{
    const test::ScratchFolder folder;
    const auto installed = folder.path() / "libexec/skyvane/skyvane-photo";
    const auto built = folder.path() / "companion/photo/decoder/skyvane-photo";
    EXPECT_EQ(Programs::photo(folder.path() / "bin"), installed);
    makeFile(built);
    EXPECT_EQ(Programs::photo(folder.path() / "companion"), built);
    makeFile(installed);
    EXPECT_EQ(Programs::photo(folder.path() / "companion"), installed);
}

TEST(Programs, theCompanionStandsBesideTheHostOrInItsBuildTree)
{
    const test::ScratchFolder folder;
    const auto host = folder.path() / "tree/host";
    EXPECT_EQ(Programs::companion(host), host / "skyvane");
    makeFile(folder.path() / "tree/companion/skyvane");
    EXPECT_EQ(Programs::companion(host), folder.path() / "tree/companion/skyvane");
    makeFile(host / "skyvane");
    EXPECT_EQ(Programs::companion(host), host / "skyvane");
}

TEST(Programs, theHostStandsBesideTheCompanionOrInItsBuildTree)
{
    const test::ScratchFolder folder;
    const auto companion = folder.path() / "tree/companion";
    EXPECT_EQ(Programs::host(companion), companion / "skyvane-host");
    makeFile(folder.path() / "tree/host/skyvane-host");
    EXPECT_EQ(Programs::host(companion), folder.path() / "tree/host/skyvane-host");
    makeFile(companion / "skyvane-host");
    EXPECT_EQ(Programs::host(companion), companion / "skyvane-host");
}

TEST(Programs, theOwnFolderIsThatOfTheRunningProgram)
{
    EXPECT_TRUE(std::filesystem::exists(Programs::ownFolder() / "platform_test"));
}

} // namespace skyvane
