#pragma once

#include "protocol/limits.h"

#include <chrono>
#include <filesystem>

class QProcess;

namespace skyvane {

/// Which program the widgets come from, and how long it may think.
struct ExtensionProgram {
    std::filesystem::path path;
    std::chrono::milliseconds timeout{Protocol::Limits::timeToAnswer}; ///< Time-out of one answer.

    /// Makes the process ready to start: the program in a clean environment, its standard error dropped.
    void prepare(QProcess& process) const;
};

} // namespace skyvane
