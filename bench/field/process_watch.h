#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

namespace skyvane::bench {

struct Memory {
    double residentMiB;
    double proportionalMiB; ///< What is shared counted in parts.
};

Memory memoryOf(pid_t process);

/// How often each of its threads has waited for something, and so was woken, since it began.
using WakeUps = std::map<std::string, std::uint64_t>;
WakeUps wakeUpsOf(pid_t process);

/// A thread that has ended in between was woken once at least.
std::uint64_t wakeUpsBetween(const WakeUps& before, const WakeUps& after);

bool hasChildren(pid_t process);

std::size_t openFilesOf(pid_t process);

} // namespace skyvane::bench
