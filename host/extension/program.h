#pragma once

#include <chrono>
#include <filesystem>

class QProcess;

namespace skyvane {

/// Which program the widgets come from, and how long it may think.
struct ExtensionProgram {
    std::filesystem::path path;
    std::chrono::milliseconds timeout{std::chrono::seconds{30}}; ///< For one answer.

    /// Makes the process ready to start: the program in a clean environment, its standard error dropped.
    void prepare(QProcess& process) const;
};

} // namespace skyvane
