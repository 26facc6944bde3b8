#pragma once

#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace skyvane::test {

/// Runs the event loop until the condition holds, looked at after every event and every 20 ms. Whether it
/// came to hold in time.
template <class Condition>
bool waitFor(Condition&& condition, std::chrono::milliseconds limit = std::chrono::seconds{20})
{
    QTimer look;
    look.start(20);
    const auto end = std::chrono::steady_clock::now() + limit;
    QEventLoop loop;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace skyvane::test
