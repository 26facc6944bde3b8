#pragma once

#include "bench/field/rows.h"

#include <string>
#include <vector>

namespace skyvane::bench {

/// What one run of a program took.
struct Run {
    double firstLineMilliseconds; ///< From its start; to its end, when it prints none.
    double cpuMilliseconds; ///< Of it and its own children.
    double peakMiB; ///< Of the largest process.
};

/// A program to be run, and what it is told.
struct Contestant {
    std::string line; ///< Empty: nothing.
    std::vector<std::string> words;
};

/// What would do without this project: the same request, the same choice of aircraft, the same order.
Contestant curlPipedToJq();
/// Its two halves, by way of a file.
Contestant curl(const std::string& file);
Contestant jq(const std::string& file);

/// Waits for the program's first line, then for its end. Throws when it fails.
Run run(const Programs& programs, const Contestant& contestant);

/// The same measured figure of several programs, run in turn.
std::vector<std::vector<Run>> runInTurn(
    const Programs& programs, std::size_t turns, const std::vector<Contestant>& contestants);

double medianOf(const std::vector<Run>& runs, double Run::*figure);

} // namespace skyvane::bench
