#include "bench/field/watched_program.h"

#include <stdexcept>
#include <utility>

namespace skyvane::bench {

WatchedProgram::WatchedProgram(const test::XSession& session, const QString& name, const QStringList& words)
{
    m_process.setProcessEnvironment(session.environment());
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.start(name, words);
    if (!m_process.waitForStarted())
        throw std::runtime_error{name.toStdString() + " does not start"};
}

WatchedProgram::~WatchedProgram()
{
    m_process.terminate();
    if (!m_process.waitForFinished(5000)) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

std::uint64_t WatchedProgram::wakeUps()
{
    const WakeUps before = std::exchange(m_wakeUps, wakeUpsOf(id()));
    return wakeUpsBetween(before, m_wakeUps);
}

} // namespace skyvane::bench
