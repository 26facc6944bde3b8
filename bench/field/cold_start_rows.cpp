#include "bench/field/measure.h"
#include "bench/field/rows.h"
#include "bench/field/screen_watch.h"

namespace skyvane::bench {

namespace {

using Pixels = ScreenWatch::Pixels;

/// Some of the scope's green, which only a widget's content has.
bool showsContent(const Pixels& pixels)
{
    for (std::size_t at = 0; at + 2 < pixels.size(); at += 4) {
        const int green = pixels[at + 1];
        if (green > 120 && green > pixels[at + 2] + 60)
            return true;
    }
    return false;
}

struct Start {
    const ScreenWatch& screen;
    const test::XSession& session;

    double operator()(
        const std::filesystem::path& program, const std::function<bool(const Pixels&)>& isShown) const
    {
        const Pixels before = screen.look();
        QProcess process;
        process.setProcessEnvironment(session.environment());
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(QString::fromStdString(program.string()), QStringList{});
        const double taken = screen.waitUntil(isShown);
        process.kill();
        process.waitForFinished();
        screen.waitUntil([&](const Pixels& now) { return now == before; });
        return taken;
    }
};

} // namespace

Rows coldStartRows(const Programs& programs, const test::XSession& session)
{
    const ScreenWatch screen{session.environment().value("DISPLAY"), {1086, 24, 170, 170}};
    const Pixels empty = screen.look();
    const Start start{.screen = screen, .session = session};
    const auto medians = interleaved(15,
        {
            [&] { return start(programs.host, showsContent); },
            [&] { return start(programs.emptyWindow, [&](const Pixels& now) { return now != empty; }); },
        });
    return {{"host start to the first widget's content on the screen", "ms", medians[0],
        "an empty Qt window on the screen", medians[1], Target{.most = 1.3}}};
}

} // namespace skyvane::bench
