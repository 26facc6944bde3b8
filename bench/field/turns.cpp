#include "bench/field/turns.h"

#include "bench/field/process_watch.h"

#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

#include <iostream>
#include <stdexcept>
#include <string>

namespace skyvane::bench {

namespace {

double milliseconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

double cpuMilliseconds(__rusage_who who)
{
    rusage usage{};
    getrusage(who, &usage);
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

} // namespace

void playTurns(const std::function<void()>& turn)
{
    for (std::string line; std::getline(std::cin, line);) {
        const double own = cpuMilliseconds(RUSAGE_SELF);
        const double others = cpuMilliseconds(RUSAGE_CHILDREN);
        turn();
        std::cout << cpuMilliseconds(RUSAGE_SELF) - own << ' ' << cpuMilliseconds(RUSAGE_CHILDREN) - others
                  << ' ' << memoryOf(getpid()).residentMiB << ' ' << openFilesOf(getpid()) << std::endl;
    }
}

TurnPlayer::TurnPlayer(
    const test::XSession& session, const std::filesystem::path& program, const QStringList& arguments)
{
    m_process.setProcessEnvironment(session.environment());
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QString::fromStdString(program.string()), arguments);
}

TurnPlayer::~TurnPlayer()
{
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished(5000)) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

Turn TurnPlayer::next()
{
    m_process.write("\n");
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(60'000))
            throw std::runtime_error{m_process.program().toStdString() + " plays no turn"};
    }
    const QList<QByteArray> figures = m_process.readLine().trimmed().split(' ');
    const auto figure = [&](int index) { return figures.at(index).toDouble(); };
    return {
        .ownMilliseconds = figure(0),
        .othersMilliseconds = figure(1),
        .residentMiB = figure(2),
        .openFiles = figure(3),
    };
}

} // namespace skyvane::bench
