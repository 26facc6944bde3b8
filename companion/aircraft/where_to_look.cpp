#include "companion/aircraft/where_to_look.h"

#include "core/radar/horizon.h"
#include "core/radar/radar_geometry.h"
#include "platform/text/compass.h"
#include "platform/text/localized.h"

#include <cmath>
#include <cstdint>

namespace skyvane {

std::optional<WhereToLook> whereToLook(const Aircraft& aircraft, const std::optional<HomeLocation>& home)
{
    constexpr double farthest = 10'801; // Nautical miles: nothing on Earth is pinned to the rim.
    const RadarGeometry geometry{.radiusNM = farthest, .home = home};
    const auto polar = geometry.polar(aircraft);
    if (!polar)
        return std::nullopt;
    WhereToLook where{.bearingDeg = polar->bearingDeg};
    if (const auto feet = Horizon::height(aircraft))
        where.elevationDeg = Horizon::elevation(polar->fraction * farthest, *feet);
    return where;
}

std::string lookText(const Aircraft& aircraft, const WhereToLook& where)
{
    const std::string to = compassDirection(where.bearingDeg);
    if (aircraft.isOnGround())
        return localized("It is on the ground, in the %1.", {to});
    if (!where.elevationDeg)
        return localized("Look %1.", {to});
    const std::int64_t degrees = std::llround(*where.elevationDeg);
    if (degrees >= 80)
        return localized("Look straight up.");
    if (*where.elevationDeg < 0)
        return localized("It is in the %1, below the horizon.", {to});
    if (degrees == 0)
        return localized("Look %1, right at the horizon.", {to});
    return localized("Look %1, about %2° above the horizon.", {to, degrees});
}

} // namespace skyvane
