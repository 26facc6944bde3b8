#pragma once

#include <chrono>
#include <functional>

/// Supervisor: brings the widgets back after their display was gone for a moment, as when a compositor or
/// Xwayland starts anew, and after a crash.
namespace skyvane::Supervisor {

struct Limits {
    std::chrono::milliseconds displayIsAwaited{10'000};
    /// One that exits sooner failed to start.
    std::chrono::milliseconds shortestRun{2'000};
    /// How often it is started again before it has run for this long.
    int restarts = 5;
    std::chrono::milliseconds soundRun{60'000};
    /// Before the first restart; before each further one in a row half as long again.
    std::chrono::milliseconds pause{500};
};

/// What is supervised: the work of a process, which returns its exit status. `isRestart`: it has run before.
using Work = std::function<int(bool isRestart)>;

/// Does the work in a process of its own, and again after a failure once there is a display. A work that
/// fails as it starts for the first time, and one that ends well or by a signal to this process, has ended.
/// Returns the exit status. Sleeps meanwhile; needs a process with one thread.
int run(const Work& work, const std::function<bool()>& isDisplayThere, const Limits& limits = {});

} // namespace skyvane::Supervisor
