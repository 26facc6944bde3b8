#include "platform/files/configuration_file.h"

namespace skyvane::Files {

std::filesystem::path configurationFile(const std::filesystem::path& home)
{
    return home / "Library/Application Support/Skyvane/widget-config.json";
}

} // namespace skyvane::Files
