#include "tests/support/process_status.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace skyvane::test::ProcessStatus {

namespace {

std::filesystem::path folderOf(pid_t process)
{
    return std::filesystem::path{"/proc"} / std::to_string(process);
}

} // namespace

std::vector<pid_t> children()
{
    return children(getpid());
}

std::vector<pid_t> children(pid_t process)
{
    std::vector<pid_t> all;
    for (const auto& thread : std::filesystem::directory_iterator{folderOf(process) / "task"}) {
        std::ifstream list{thread.path() / "children"};
        all.insert(all.end(), std::istream_iterator<pid_t>{list}, {});
    }
    return all;
}

std::string line(pid_t process, const std::string& key)
{
    std::ifstream status{folderOf(process) / "status"};
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(key + ":\t"))
            return line.substr(key.size() + 2);
    }
    return {};
}

std::size_t number(pid_t process, const std::string& key)
{
    const std::string text = line(process, key);
    return text.empty() ? 0 : std::stoul(text);
}

std::size_t openDescriptors(pid_t process)
{
    const std::filesystem::directory_iterator listed{folderOf(process) / "fd"};
    return static_cast<std::size_t>(std::distance(begin(listed), end(listed)));
}

} // namespace skyvane::test::ProcessStatus
