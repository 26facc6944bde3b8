#include "bench/field/desktop_session.h"
#include "bench/field/measure.h"
#include "bench/field/rows.h"
#include "bench/field/run.h"
#include "bench/field/turns.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace skyvane::bench {

namespace {

constexpr std::size_t anHour = 12; ///< Refreshes, one each five minutes.
constexpr std::size_t aDay = 24 * anHour;
constexpr std::size_t peerRuns = 24;

/// So many refreshes of the host's three widgets, with a run of the peer now and then.
struct Refreshes {
    std::vector<Turn> turns{};
    std::vector<Traffic> traffic{}; ///< Of each turn.
    double peerMilliseconds{}; ///< CPU time.
};

Refreshes refreshes(const Programs& programs, const OwnWorld& world, Setting setting, std::size_t count)
{
    const DesktopSession session{setting};
    TurnPlayer desktop{session, programs.desktopTurns};
    Refreshes made;
    std::vector<Run> peers;
    for (std::size_t turn = 0; turn < count; ++turn) {
        const Traffic before = world.traffic();
        made.turns.push_back(desktop.next());
        const Traffic after = world.traffic();
        made.traffic.push_back(
            {.requests = after.requests - before.requests, .bytes = after.bytes - before.bytes});
        if (turn % (count / peerRuns) == 0)
            peers.push_back(run(programs, curlPipedToJq()));
    }
    made.peerMilliseconds = medianOf(peers, &Run::cpuMilliseconds);
    return made;
}

template <class Element>
double medianOf(const std::vector<Element>& list, const std::function<double(const Element&)>& figure)
{
    std::vector<double> figures(list.size());
    std::ranges::transform(list, figures.begin(), figure);
    return median(std::move(figures));
}

double extensionsPart(const Turn& turn)
{
    return turn.othersMilliseconds;
}

double bothParts(const Turn& turn)
{
    return turn.othersMilliseconds + turn.ownMilliseconds;
}

Row cpuRow(const std::string& what, const Refreshes& made, double (*part)(const Turn&), double most)
{
    return {"CPU of that refresh: " + what, "ms", medianOf<Turn>(made.turns, part), "curl piped to jq",
        made.peerMilliseconds, Target{.most = most}};
}

} // namespace

Rows refreshRows(const Programs& programs, const OwnWorld& world)
{
    const Refreshes day = refreshes(programs, world, Setting::plain, aDay);
    const Refreshes hours = refreshes(programs, world, Setting::gnome, 2 * anHour);
    const double requests = medianOf<Traffic>(day.traffic, [](const Traffic& turn) { return turn.requests; });
    const double bytes = medianOf<Traffic>(day.traffic, [](const Traffic& turn) { return turn.bytes; });
    const double milliseconds
        = std::transform_reduce(day.turns.begin(), day.turns.end(), 0.0, std::plus<>{}, bothParts);
    const Turn& hourOld = day.turns.at(anHour);
    const Turn& dayOld = day.turns.back();
    return {
        {"requests to the feed, one refresh of three widgets", "", requests, "", std::nullopt,
            Target{.most = 1, .isRatio = false}},
        {"bytes from the feed, one refresh of three widgets", "KiB", bytes / 1024},
        cpuRow("the extension", day, extensionsPart, 0.2),
        cpuRow("extension and host together", day, bothParts, 0.25),
        cpuRow("extension and host together" + suffix(Setting::gnome), hours, bothParts, 0.25),
        {"CPU of a day: 288 refreshes", "s", milliseconds / 1000},
        {"host's memory after that day", "MiB", dayOld.residentMiB, "after an hour", hourOld.residentMiB,
            Target{.most = 1.02}},
        {"host's open files after that day", "", dayOld.openFiles, "after an hour", hourOld.openFiles,
            Target{.most = 1}},
    };
}

} // namespace skyvane::bench
