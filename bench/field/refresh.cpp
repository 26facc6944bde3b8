#include "bench/field/refresh.h"

#include "bench/field/measure.h"
#include "bench/field/process_watch.h"
#include "host/extension/client.h"
#include "paint/render.h"
#include "ui/layout/widget_container.h"

#include <sys/resource.h>
#include <unistd.h>

#include <array>
#include <ostream>

namespace skyvane::bench {

namespace {

constexpr int warmUp = 100;
constexpr int refreshes = 1000;

double seconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

double cpuMilliseconds()
{
    double sum = 0;
    for (const int who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage usage{};
        getrusage(who, &usage);
        sum += seconds(usage.ru_utime) + seconds(usage.ru_stime);
    }
    return sum * 1e3;
}

void refresh(const std::filesystem::path& program, const FontMeasurer& fonts)
{
    const std::array<WidgetTarget, 3> all{{
        {"org.skyvane.widgets.nearest", WidgetFamily::small},
        {"org.skyvane.widgets.radar", WidgetFamily::medium},
        {"org.skyvane.widgets.skyboard", WidgetFamily::large},
    }};
    ExtensionClient extension{{.path = program}};
    for (const WidgetTarget& shown : all) {
        const WidgetEntry entry = extension.ask(Protocol::TimelineCall{.params = shown}).entries.at(0);
        const DisplayList list = WidgetContainer::layout(entry.view, shown.family, fonts);
        use(renderImage(list, entry.background, 1, fonts));
    }
}

} // namespace

void refreshAgainAndAgain(const std::filesystem::path& extension, std::ostream& out)
{
    const FontMeasurer fonts;
    double cpuBefore = 0;
    for (int turn = 0; turn < warmUp + refreshes; ++turn) {
        if (turn == warmUp) {
            out << memoryOf(getpid()).residentMiB << ' ' << openFilesOf(getpid()) << ' ';
            cpuBefore = cpuMilliseconds();
        }
        refresh(extension, fonts);
    }
    const double cpu = (cpuMilliseconds() - cpuBefore) / refreshes;
    out << memoryOf(getpid()).residentMiB << ' ' << openFilesOf(getpid()) << ' ' << cpu << '\n';
}

} // namespace skyvane::bench
