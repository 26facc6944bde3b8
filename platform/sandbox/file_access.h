#pragma once

#include <filesystem>
#include <span>

/// Landlock: what is left of the file system, and of what goes beside it, to the calling thread and all that
/// it starts from then on.
namespace skyvane::FileAccess {

/// The version that this machine's kernel offers; 0: none.
int version();

/// What else is left. Being connected to is given up in any case, from version 4 on.
enum class Connections {
    none, ///< No TCP, from version 4 on, and no abstract socket of another program's, from version 6 on.
    toAnybody,
};

/// Leaves reading of these files, and of all that is in these folders; one that is not there is passed over.
/// Whether the kernel took it; it wants to hear "no new privileges" before.
bool restrict(std::span<const std::filesystem::path> readable, Connections connections);

} // namespace skyvane::FileAccess
