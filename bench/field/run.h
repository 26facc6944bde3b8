#pragma once

#include "bench/field/rows.h"

#include <string>
#include <string_view>
#include <vector>

namespace skyvane::bench {

/// What one run of a program took.
struct Run {
    double firstLineMilliseconds; ///< From its start; to its end, when it prints none.
    double cpuMilliseconds; ///< Of it and its own children.
    double peakMiB; ///< Of the largest process.
};

/// Runs a program that is told `line`, waits for its first line, then for its end. Throws when it fails.
Run run(const Programs& programs, std::string_view line, const std::vector<std::string>& words);

/// The same measured figure of several programs, run in turn.
struct Contestant {
    std::string line;
    std::vector<std::string> words;
};
std::vector<std::vector<Run>> runInTurn(
    const Programs& programs, std::size_t turns, const std::vector<Contestant>& contestants);

double medianOf(const std::vector<Run>& runs, double Run::*figure);

} // namespace skyvane::bench
