#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace skyvane {

/// Where the current user's own files live. Pinned in tests, so that none ever touches the real one.
struct HomeFolder {
    std::filesystem::path path;
};

/// Whole files, at once or not at all.
namespace Files {

/// The user database's login directory of the current user, else the environment's HOME, else "/".
std::filesystem::path homeFolder();

/// The whole file. Absent for everything that is not a readable regular file of at most `limit` bytes; never
/// waits, not even on a pipe.
std::optional<std::string> read(const std::filesystem::path& file, std::size_t limit);

/// Replaces the file in one step: a reader, or a crash, sees the old bytes or the new ones. The folder must
/// exist. A link stays one: the file that it leads to is replaced. The file keeps its mode; a new one is its
/// owner's alone. Whether it worked; if not, the old file stands and nothing is left beside it.
bool writeAtomically(const std::filesystem::path& place, std::string_view bytes);

/// Removes what a writer of this file left beside it that was killed while it wrote. What is younger than a
/// minute stays: its writer may be at work.
void removeAbandonedDrafts(const std::filesystem::path& place);

} // namespace Files

} // namespace skyvane
