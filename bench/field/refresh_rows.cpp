#include "bench/field/rows.h"

#include <QProcess>

#include <stdexcept>

namespace skyvane::bench {

Rows refreshRows(const Programs& programs)
{
    QProcess process;
    process.start(QString::fromStdString(programs.refresher.string()),
        {"refresh", QString::fromStdString(programs.extension.string())});
    if (!process.waitForFinished(900'000) || process.exitCode() != 0)
        throw std::runtime_error{"refresh: " + process.readAllStandardError().toStdString()};
    const QList<QByteArray> figures = process.readAllStandardOutput().trimmed().split(' ');
    const auto figure = [&](int index) { return figures.at(index).toDouble(); };
    return {
        {"memory after 1000 more refreshes of three widgets", "MiB", figure(2), "after the first 100",
            figure(0), Target{.most = 1.02}},
        {"open files after 1000 more refreshes", "", figure(3), "after the first 100", figure(1),
            Target{.most = 1}},
        {"one refresh of three widgets, extension included: CPU", "ms", figure(4), "", std::nullopt,
            Target{.most = 50, .isRatio = false}},
    };
}

} // namespace skyvane::bench
