#include "bench/field/run.h"

#include "bench/field/measure.h"

#include <QProcess>

#include <algorithm>
#include <stdexcept>

namespace skyvane::bench {

Run run(const Programs& programs, std::string_view line, const std::vector<std::string>& words)
{
    QStringList arguments{QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size()))};
    for (const std::string& word : words)
        arguments << QString::fromStdString(word);
    QProcess process;
    process.start(QString::fromStdString(programs.launch.string()), arguments);
    if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        throw std::runtime_error{words.front() + ": " + process.readAllStandardError().toStdString()};
    const QList<QByteArray> figures = process.readAllStandardOutput().trimmed().split(' ');
    return {
        .firstLineMilliseconds = figures.at(0).toDouble(),
        .cpuMilliseconds = figures.at(1).toDouble(),
        .peakMiB = figures.at(2).toDouble() / 1024,
    };
}

std::vector<std::vector<Run>> runInTurn(
    const Programs& programs, std::size_t turns, const std::vector<Contestant>& contestants)
{
    std::vector<std::vector<Run>> runs(contestants.size());
    for (const Contestant& contestant : contestants)
        run(programs, contestant.line, contestant.words);
    for (std::size_t turn = 0; turn < turns; ++turn) {
        for (std::size_t index = 0; index < contestants.size(); ++index)
            runs[index].push_back(run(programs, contestants[index].line, contestants[index].words));
    }
    return runs;
}

double medianOf(const std::vector<Run>& runs, double Run::*figure)
{
    std::vector<double> values(runs.size());
    std::ranges::transform(runs, values.begin(), [&](const Run& run) { return run.*figure; });
    return median(std::move(values));
}

} // namespace skyvane::bench
