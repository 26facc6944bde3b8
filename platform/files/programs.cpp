#include "platform/files/programs.h"

namespace skyvane::Programs {

namespace {

std::filesystem::path thereOf(const std::filesystem::path& installed, const std::filesystem::path& built)
{
    std::error_code ignored;
    const bool isBuildTree
        = !std::filesystem::exists(installed, ignored) && std::filesystem::exists(built, ignored);
    return isBuildTree ? built : installed;
}

} // namespace

std::filesystem::path ownFolder()
{
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
}

std::filesystem::path companion(const std::filesystem::path& folder)
{
    return thereOf(folder / "skyvane", folder.parent_path() / "companion/skyvane");
}

std::filesystem::path host(const std::filesystem::path& folder)
{
    return thereOf(folder / "skyvane-host", folder.parent_path() / "host/skyvane-host");
}

std::filesystem::path widgets(const std::filesystem::path& folder)
{
    const std::filesystem::path prefix = folder.parent_path();
    return thereOf(prefix / "libexec/skyvane/skyvane-widgets", prefix / "widgets/extension/skyvane-widgets");
}

std::filesystem::path photo(const std::filesystem::path& folder)
{
    return thereOf(
        folder.parent_path() / "libexec/skyvane/skyvane-photo", folder / "photo/decoder/skyvane-photo");
}

std::filesystem::path catalogues(const std::filesystem::path& prefix)
{
    return prefix / "share/locale";
}

} // namespace skyvane::Programs
