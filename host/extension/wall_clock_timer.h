#pragma once

#include "platform/clock.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace skyvane {

/// Wakes at a moment of the wall clock, and at once when that clock is set or the machine wakes from sleep.
/// Costs nothing while it waits.
class WallClockTimer {
public:
    explicit WallClockTimer(std::function<void()> wake);
    ~WallClockTimer();
    WallClockTimer(const WallClockTimer&) = delete;
    WallClockTimer& operator=(const WallClockTimer&) = delete;

    /// Replaces the moment asked for before.
    void wakeAt(Date moment);

private:
    int m_timer;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::function<void()> m_wake;
};

} // namespace skyvane
