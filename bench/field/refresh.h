#pragma once

#include <filesystem>
#include <iosfwd>

namespace skyvane::bench {

/// Refreshes three widgets 1,000 times, each time with an extension of its own, lays them out and paints
/// them, and prints memory and open files after 100 and after all, and the CPU time of a refresh.
void refreshAgainAndAgain(const std::filesystem::path& extension, std::ostream& out);

} // namespace skyvane::bench
