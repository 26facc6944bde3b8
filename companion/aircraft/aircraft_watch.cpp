#include "companion/aircraft/aircraft_watch.h"

#include "platform/text/unicode.h"

#include <algorithm>

namespace skyvane {

void AircraftWatch::look(const SkyReport& report)
{
    const std::string own = Unicode::uppercased(m_hex);
    const auto& all = report.entry.aircraft;
    const auto found = std::ranges::find_if(
        all, [&](const Aircraft& aircraft) { return Unicode::uppercased(aircraft.hex) == own; });
    if (found == all.end()) {
        m_state = stateWithout(report);
        return;
    }
    m_aircraft = *found;
    m_seenAt = report.entry.date;
    m_state = State::inRange;
}

AircraftWatch::State AircraftWatch::stateWithout(const SkyReport& report) const
{
    if (!report.entry.home)
        return State::noHome;
    if (m_aircraft)
        return State::gone;
    if (report.isAsking)
        return State::lookedFor;
    if (!report.problem.empty())
        return State::noAnswer;
    return report.hasAnswer ? State::elsewhere : State::lookedFor;
}

} // namespace skyvane
