#include "bench/field/desktop_session.h"
#include "bench/field/rows.h"
#include "bench/field/turns.h"

#include <algorithm>
#include <string>

namespace skyvane::bench {

namespace {

/// The longest of many steps; those at first fill caches, as a user's first do.
double longestStep(const DesktopSession& session, const Programs& programs, const QString& what)
{
    constexpr int steps = 200;
    TurnPlayer player{session, programs.paceTurns, {what}};
    player.next();
    double longest = 0;
    for (int step = 0; step < steps; ++step)
        longest = std::max(longest, player.next().ownMilliseconds);
    return longest;
}

} // namespace

Rows companionPaceRows(const Programs& programs)
{
    const DesktopSession session{Setting::plain};
    const Target frame{.most = 16, .isRatio = false};
    const auto row = [&](const std::string& what, const QString& step) {
        return Row{"1,000 aircraft: " + what + ", the longest of 200", "ms",
            longestStep(session, programs, step), {}, {}, frame};
    };
    return {
        row("the list scrolls", QStringLiteral("list")),
        row("the pointer goes over the scope", QStringLiteral("scope")),
        row("the scope with its map and an hour of trails is painted", QStringLiteral("sky")),
        row("the map is dragged", QStringLiteral("map")),
    };
}

} // namespace skyvane::bench
