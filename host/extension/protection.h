#pragma once

#include <cstdint>
#include <optional>

#include <sys/types.h>

namespace skyvane {

/// What protects the desktop from the extension's process, as the kernel tells from outside.
struct Protection {
    bool hasCallFilter; ///< seccomp.
    bool hasNoNewPrivileges;
    int fileAccessVersion; ///< Landlock's, as this kernel offers it; 0: none.
    std::optional<std::uint64_t> mostMemory; ///< Bytes of data; absent: no bound.
    bool hasConnector; ///< A process that connects in its place.

    /// Of a process that has answered a question.
    static Protection of(pid_t process);
};

} // namespace skyvane
