#include "bench/field/process_watch.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace skyvane::bench {

namespace {

std::filesystem::path folderOf(pid_t process)
{
    return "/proc/" + std::to_string(process);
}

/// The number behind this name in a file of "name: number" lines; 0 when it is not there.
std::uint64_t number(const std::filesystem::path& file, const std::string& name)
{
    std::ifstream stream{file};
    for (std::string word; stream >> word;) {
        std::uint64_t value = 0;
        if (word == name && stream >> value)
            return value;
    }
    return 0;
}

} // namespace

Memory memoryOf(pid_t process)
{
    const auto mebibytes = [&](const char* name) {
        return static_cast<double>(number(folderOf(process) / "smaps_rollup", name)) / 1024;
    };
    return {.residentMiB = mebibytes("Rss:"), .proportionalMiB = mebibytes("Pss:")};
}

WakeUps wakeUpsOf(pid_t process)
{
    WakeUps threads;
    for (const auto& thread : std::filesystem::directory_iterator{folderOf(process) / "task"})
        threads[thread.path().filename()] = number(thread.path() / "status", "voluntary_ctxt_switches:");
    return threads;
}

std::uint64_t wakeUpsBetween(const WakeUps& before, const WakeUps& after)
{
    std::uint64_t sum = 0;
    for (const auto& [thread, count] : after) {
        const auto known = before.find(thread);
        sum += known == before.end() ? count : count - known->second;
    }
    for (const auto& [thread, count] : before)
        sum += after.contains(thread) ? 0 : 1;
    return sum;
}

bool hasChildren(pid_t process)
{
    for (const auto& thread : std::filesystem::directory_iterator{folderOf(process) / "task"}) {
        std::string child;
        if (std::ifstream{thread.path() / "children"} >> child)
            return true;
    }
    return false;
}

std::size_t openFilesOf(pid_t process)
{
    const std::filesystem::directory_iterator files{folderOf(process) / "fd"};
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

} // namespace skyvane::bench
