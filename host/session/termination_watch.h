#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace skyvane {

/// Tells when somebody asks this process to end (SIGTERM, SIGINT, SIGHUP), which it goes on until it does by
/// itself. One at a time; costs nothing while it waits.
class TerminationWatch {
public:
    explicit TerminationWatch(std::function<void()> asked);
    ~TerminationWatch();
    TerminationWatch(const TerminationWatch&) = delete;
    TerminationWatch& operator=(const TerminationWatch&) = delete;

private:
    std::function<void()> m_asked;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace skyvane
