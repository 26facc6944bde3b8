#include "bench/field/desktop_session.h"
#include "bench/field/rows.h"
#include "bench/field/turns.h"

namespace skyvane::bench {

Rows companionHourRows(const Programs& programs)
{
    constexpr int minutes = 60;
    constexpr int hours = 8;
    const DesktopSession session{Setting::plain};
    TurnPlayer sky{session, programs.skyTurns};
    Turn last{};
    double milliseconds = 0;
    for (int minute = 0; minute < minutes; ++minute) {
        last = sky.next();
        milliseconds += last.ownMilliseconds;
    }
    const double afterAnHour = last.residentMiB;
    for (int minute = minutes; minute < hours * minutes; ++minute)
        last = sky.next();
    return {
        {"an hour on the sky page: CPU of 60 refreshes", "ms", milliseconds},
        {"eight hours on the sky page: resident after them", "MiB", last.residentMiB, "after the first",
            afterAnHour, Target{.most = 1.02}},
    };
}

} // namespace skyvane::bench
