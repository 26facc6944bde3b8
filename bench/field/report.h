#pragma once

#include <optional>
#include <string>
#include <vector>

namespace skyvane::bench {

/// What a row may be at most: of the figure itself, or of its ratio to the peer's.
struct Target {
    double most;
    bool isRatio = true;
};

/// One figure of this project beside that of something else that would do the job.
struct Row {
    std::string what;
    std::string unit;
    double ours;
    std::string peer{};
    std::optional<double> theirs{};
    std::optional<Target> target{};

    std::optional<double> ratio() const;
    /// Absent without a target.
    std::optional<bool> isMet() const;
};

/// A Markdown table.
std::string table(const std::vector<Row>& rows);

/// The processor, its cores, the system and the compiler.
std::string machine();

/// As JSON: {"machine", "rows": [{"what", "unit", "ours", …}]}.
std::string json(const std::vector<Row>& rows);

} // namespace skyvane::bench
