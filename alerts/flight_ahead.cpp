#include "alerts/flight_ahead.h"

#include "core/radar/horizon.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double highestClimb = 45'000; ///< Feet; whoever climbs levels off by then,
constexpr double lowestDescent = 3'000; ///< and whoever sinks, before the final approach.

double heightAfter(double feet, double feetPerMinute, std::chrono::duration<double> time)
{
    const double then = feet + feetPerMinute * time.count() / 60;
    if (feetPerMinute > 0)
        return std::min(then, std::max(feet, highestClimb));
    return feet > lowestDescent ? std::max(then, lowestDescent) : then;
}

} // namespace

std::optional<FlightAhead> FlightAhead::of(const Aircraft& aircraft, const Coordinate& home)
{
    const auto position = aircraft.coordinate();
    const auto height = Horizon::height(aircraft);
    if (!position || !height || !aircraft.track || !aircraft.groundSpeed || !(*aircraft.groundSpeed > 0))
        return std::nullopt;
    const EarthFrame start = EarthFrame::at(*position);
    FlightAhead flight{EarthFrame::at(home), start.up, start.towards(*aircraft.track)};
    flight.m_knots = *aircraft.groundSpeed;
    flight.m_feet = *height;
    flight.m_feetPerMinute = static_cast<double>(aircraft.verticalRate().value_or(0));
    flight.m_age = std::chrono::duration<double>{aircraft.seenPos.value_or(0)};
    return flight;
}

/// Along the circle the place is start · cos + course · sin; eyes · place is largest, and so the way to it
/// shortest, here.
std::chrono::duration<double> FlightAhead::timeOfClosestApproach() const
{
    const double along = std::atan2(m_eyes.up.dot(m_course), m_eyes.up.dot(m_start));
    return Hours{along * Horizon::earthRadiusNM / m_knots};
}

std::optional<SkyPosition> FlightAhead::after(std::chrono::duration<double> flight) const
{
    const double along = Hours{flight}.count() * m_knots / Horizon::earthRadiusNM;
    const EarthVector place = m_start * std::cos(along) + m_course * std::sin(along);
    const double distanceNM = m_eyes.distance(place) * Horizon::earthRadiusNM;
    const double feet = heightAfter(m_feet, m_feetPerMinute, flight);
    const SkyPosition found{
        .in = flight - m_age,
        .distanceNM = distanceNM,
        .bearingDeg = m_eyes.bearing(place),
        .elevationDeg = Horizon::elevation(distanceNM, feet),
    };
    const bool isKnown = std::isfinite(found.in.count()) && std::isfinite(found.elevationDeg);
    return isKnown && feet > 0 ? std::optional{found} : std::nullopt;
}

} // namespace skyvane
