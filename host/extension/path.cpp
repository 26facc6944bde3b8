#include "host/extension/path.h"

namespace skyvane {

std::filesystem::path extensionPath(const std::filesystem::path& programFolder)
{
    const std::filesystem::path parent = programFolder.parent_path();
    const std::filesystem::path installed = parent / "libexec/skyvane/skyvane-widgets";
    const std::filesystem::path built = parent / "widgets/extension/skyvane-widgets";
    std::error_code ignored;
    const bool isBuildTree
        = !std::filesystem::exists(installed, ignored) && std::filesystem::exists(built, ignored);
    return isBuildTree ? built : installed;
}

} // namespace skyvane
