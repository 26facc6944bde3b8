#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <sys/types.h>

namespace skyvane::test {

/// What the kernel says of a process of this user.
namespace ProcessStatus {

/// Those that this process, or another one, has started and not yet waited for.
std::vector<pid_t> children();
std::vector<pid_t> children(pid_t process);

/// A line of the process's status, such as "NoNewPrivs"; empty when there is none.
std::string line(pid_t process, const std::string& key);

/// A number in such a line; without its unit.
std::size_t number(pid_t process, const std::string& key);

std::size_t openDescriptors(pid_t process);

} // namespace ProcessStatus

} // namespace skyvane::test
