#include "companion/sky/trails.h"

#include <algorithm>

namespace skyvane {

namespace {

/// What bounds the memory: whoever asks every second has no finer trails for it.
constexpr std::chrono::seconds closest{10};

/// When the aircraft was where it is said to be.
Date timeOf(const Aircraft& aircraft, Date answered)
{
    constexpr double longestAge = 3600;
    const double age = aircraft.seenPos.value_or(0);
    if (!(age > 0 && age < longestAge))
        return answered;
    return answered - std::chrono::round<std::chrono::milliseconds>(std::chrono::duration<double>{age});
}

} // namespace

void Trails::note(const SkyEntry& sky)
{
    if (sky.date == m_noted)
        return;
    if (sky.date < m_noted) // The clock was set back.
        m_trails.clear();
    m_noted = sky.date;
    for (const Aircraft& aircraft : sky.aircraft) {
        if (const auto place = aircraft.coordinate())
            add(aircraft.hex, {.at = timeOf(aircraft, sky.date), .place = *place});
    }
    forget(sky.date - longest);
}

void Trails::add(const std::string& hex, const Sighting& sighting)
{
    std::vector<Sighting>& trail = m_trails[hex];
    if (trail.empty() || (sighting.at - trail.back().at >= closest && sighting.place != trail.back().place))
        trail.push_back(sighting);
}

void Trails::forget(Date before)
{
    for (auto& [hex, trail] : m_trails)
        std::erase_if(trail, [&](const Sighting& sighting) { return sighting.at < before; });
    std::erase_if(m_trails, [](const auto& entry) { return entry.second.empty(); });
}

std::span<const Trails::Sighting> Trails::of(const std::string& hex) const
{
    const auto found = m_trails.find(hex);
    return found == m_trails.end() ? std::span<const Sighting>{} : found->second;
}

} // namespace skyvane
