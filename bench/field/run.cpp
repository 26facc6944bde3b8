#include "bench/field/run.h"

#include "bench/field/measure.h"

#include <QProcess>

#include <algorithm>
#include <stdexcept>

namespace skyvane::bench {

namespace {

const std::string download = "curl --silent --fail https://api.adsb.lol/v2/point/51.50000/-0.12000/250";
const std::string choose = "jq --compact-output '[(.ac // .aircraft // [])[] "
                           "| select(.lat != null and .lon != null and (.seen_pos // 0) < 60)] "
                           "| sort_by(.dst // infinite)'";

Contestant shell(const std::string& script)
{
    return {.line = "", .words = {"sh", "-c", script}};
}

} // namespace

Contestant curlPipedToJq()
{
    return shell(download + " | " + choose);
}

Contestant curl(const std::string& file)
{
    return shell("exec " + download + " --output " + file);
}

Contestant jq(const std::string& file)
{
    return shell("exec " + choose + " " + file);
}

Run run(const Programs& programs, const Contestant& contestant)
{
    QStringList arguments{QString::fromStdString(contestant.line)};
    for (const std::string& word : contestant.words)
        arguments << QString::fromStdString(word);
    QProcess process;
    process.start(QString::fromStdString(programs.launch.string()), arguments);
    if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        throw std::runtime_error{
            contestant.words.front() + ": " + process.readAllStandardError().toStdString()};
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
        run(programs, contestant);
    for (std::size_t turn = 0; turn < turns; ++turn) {
        for (std::size_t index = 0; index < contestants.size(); ++index)
            runs[index].push_back(run(programs, contestants[index]));
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
