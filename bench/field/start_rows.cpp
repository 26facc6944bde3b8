#include "bench/field/desktop_session.h"
#include "bench/field/measure.h"
#include "bench/field/rows.h"
#include "bench/field/screen_watch.h"

#include <QProcess>

#include <functional>

namespace skyvane::bench {

namespace {

using Pixels = ScreenWatch::Pixels;

constexpr std::size_t turns = 11;

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

/// Starts programs until a part of the screen shows them.
class Stage {
public:
    Stage(Setting setting, const QRect& part)
        : m_session(setting)
        , m_screen(m_session.environment().value("DISPLAY"), part)
        , m_empty(m_screen.look())
    {
    }

    /// Milliseconds.
    double start(const std::filesystem::path& program, const QStringList& words,
        const std::function<bool(const Pixels&)>& isShown) const
    {
        QProcess process;
        process.setProcessEnvironment(m_session.environment());
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(QString::fromStdString(program.string()), words);
        const double taken = m_screen.waitUntil(isShown);
        process.kill();
        process.waitForFinished();
        m_screen.waitUntil([this](const Pixels& now) { return now == m_empty; });
        return taken;
    }

    double startWindow(const std::filesystem::path& program, const QStringList& words = {}) const
    {
        return start(program, words, [this](const Pixels& now) { return now != m_empty; });
    }

private:
    DesktopSession m_session;
    ScreenWatch m_screen;
    Pixels m_empty;
};

} // namespace

Rows hostStartRows(const Programs& programs)
{
    Rows rows;
    for (const Setting setting : settings) {
        const Stage stage{setting, {1086, 24, 170, 170}};
        const auto medians = interleaved(turns,
            {
                [&] { return stage.start(programs.host, {}, showsContent); },
                [&] {
                    return stage.startWindow(programs.emptyWindow, {"170", "170"});
                },
            });
        rows.push_back({"host start to first content" + suffix(setting), "ms", medians[0],
            "an empty Qt window", medians[1], Target{.most = 2}});
    }
    return rows;
}

Rows companionStartRows(const Programs& programs)
{
    Rows rows;
    for (const Setting setting : settings) {
        const Stage stage{setting, {632, 440, 16, 16}};
        const auto medians = interleaved(turns,
            {
                [&] { return stage.startWindow(programs.companion); },
                [&] {
                    return stage.startWindow(programs.emptyWindow, {"1120", "720"});
                },
            });
        rows.push_back({"companion start to visible window" + suffix(setting), "ms", medians[0],
            "an empty Qt window", medians[1], Target{.most = 1.5}});
    }
    return rows;
}

} // namespace skyvane::bench
