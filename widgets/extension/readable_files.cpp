#include "widgets/extension/readable_files.h"

#include "platform/files/configuration_file.h"
#include "platform/net/authorities.h"

#include <cstdlib>
#include <string>
#include <system_error>

namespace skyvane::Extension::ReadableFiles {

namespace {

std::filesystem::path nearestThatIsThere(std::filesystem::path folder)
{
    std::error_code ignored;
    while (folder.has_relative_path() && !std::filesystem::exists(folder, ignored))
        folder = folder.parent_path();
    return folder;
}

} // namespace

std::vector<std::filesystem::path> ofDecoder()
{
    std::vector<std::filesystem::path> all{
        "/etc/ssl",
        "/etc/pki",
        "/etc/ca-certificates",
        "/usr/share/ca-certificates",
        "/usr/local/share/ca-certificates",
        "/var/lib/ca-certificates",
        "/etc/localtime",
        "/etc/timezone",
        "/usr/share/zoneinfo",
        "/usr/lib/locale",
        "/usr/share/locale",
    };
    const std::filesystem::path configuration = Files::configurationFile();
    all.push_back(nearestThatIsThere(configuration.parent_path()));
    std::error_code isNotThere;
    if (const auto linked = std::filesystem::canonical(configuration, isNotThere); !isNotThere)
        all.push_back(linked.parent_path());
    const Authorities authorities = Authorities::current();
    for (const std::string& place : {authorities.folder, authorities.bundle}) {
        if (!place.empty())
            all.emplace_back(place);
    }
    if (const char* timeZones = std::getenv("TZDIR"))
        all.emplace_back(timeZones);
    return all;
}

std::vector<std::filesystem::path> ofConnector()
{
    return {"/etc", "/usr", "/lib", "/lib64", "/run", "/var/lib", "/var/cache", "/nix/store", "/gnu/store",
        "/proc/self", "/proc/sys", "/dev/null", "/dev/urandom"};
}

} // namespace skyvane::Extension::ReadableFiles
