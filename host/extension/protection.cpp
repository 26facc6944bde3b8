#include "host/extension/protection.h"

#include "platform/sandbox/file_access.h"

#include <sys/resource.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace skyvane {

namespace {

std::filesystem::path folderOf(pid_t process)
{
    return std::filesystem::path{"/proc"} / std::to_string(process);
}

/// A line of the process's status, such as "Seccomp"; empty when there is none.
std::string status(pid_t process, const std::string& key)
{
    std::ifstream lines{folderOf(process) / "status"};
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(key + ":\t"))
            return line.substr(key.size() + 2);
    }
    return {};
}

std::optional<std::uint64_t> dataLimit(pid_t process)
{
    rlimit limit{};
    if (prlimit(process, RLIMIT_DATA, nullptr, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return std::nullopt;
    return limit.rlim_cur;
}

bool hasChild(pid_t process)
{
    const std::string number = std::to_string(process);
    pid_t child = 0;
    return static_cast<bool>(std::ifstream{folderOf(process) / "task" / number / "children"} >> child);
}

} // namespace

Protection Protection::of(pid_t process)
{
    return {
        .hasCallFilter = status(process, "Seccomp") == "2",
        .hasNoNewPrivileges = status(process, "NoNewPrivs") == "1",
        .fileAccessVersion = FileAccess::version(),
        .mostMemory = dataLimit(process),
        .hasConnector = hasChild(process),
    };
}

} // namespace skyvane
