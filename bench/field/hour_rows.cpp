#include "bench/field/desktop_session.h"
#include "bench/field/rows.h"
#include "bench/field/turns.h"

namespace skyvane::bench {

Rows companionHourRows(const Programs& programs)
{
    constexpr int minutes = 60;
    const DesktopSession session{Setting::plain};
    TurnPlayer sky{session, programs.skyTurns};
    const double before = sky.next().residentMiB;
    Turn last{};
    double milliseconds = 0;
    for (int minute = 0; minute < minutes; ++minute) {
        last = sky.next();
        milliseconds += last.ownMilliseconds;
    }
    return {
        {"an hour on the sky page: CPU of 60 refreshes", "ms", milliseconds},
        {"an hour on the sky page: resident after it", "MiB", last.residentMiB, "before it", before},
    };
}

} // namespace skyvane::bench
