#pragma once

#include "bench/field/process_watch.h"
#include "tests/session/x_session.h"

#include <QProcess>

namespace skyvane::bench {

/// A program of a session, until the end of the scope.
class WatchedProgram {
public:
    /// Throws when it does not start.
    WatchedProgram(const test::XSession& session, const QString& name, const QStringList& words = {});
    ~WatchedProgram();
    WatchedProgram(const WatchedProgram&) = delete;
    WatchedProgram& operator=(const WatchedProgram&) = delete;

    pid_t id() const { return static_cast<pid_t>(m_process.processId()); }

    /// Since the last time; since its start, the first time.
    std::uint64_t wakeUps();

private:
    QProcess m_process;
    WakeUps m_wakeUps;
};

} // namespace skyvane::bench
