#include "host/extension/path.h"

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

TEST(ExtensionPath, theInstalledExtensionComesFirst)
{
    const test::ScratchFolder folder;
    const auto installed = folder.path() / "libexec/skyvane/skyvane-widgets";
    const auto built = folder.path() / "widgets/extension/skyvane-widgets";
    EXPECT_EQ(extensionPath(folder.path() / "bin"), installed);
    makeFile(built);
    EXPECT_EQ(extensionPath(folder.path() / "host"), built);
    makeFile(installed);
    EXPECT_EQ(extensionPath(folder.path() / "bin"), installed);
}

} // namespace skyvane
