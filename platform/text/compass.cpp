#include "platform/text/compass.h"

#include "platform/text/localized.h"

#include <cmath>

namespace skyvane {

namespace {

enum class Point { north, northEast, east, southEast, south, southWest, west, northWest };

Point nearestPoint(double bearingDeg)
{
    return static_cast<Point>(std::lround(bearingDeg / 45) & 7);
}

} // namespace

std::string compassDirection(double bearingDeg)
{
    switch (nearestPoint(bearingDeg)) {
    case Point::north:
        return localized("north");
    case Point::northEast:
        return localized("north-east");
    case Point::east:
        return localized("east");
    case Point::southEast:
        return localized("south-east");
    case Point::south:
        return localized("south");
    case Point::southWest:
        return localized("south-west");
    case Point::west:
        return localized("west");
    default:
        return localized("north-west");
    }
}

std::string compassPoint(double bearingDeg)
{
    switch (nearestPoint(bearingDeg)) {
    case Point::north:
        return localized("N");
    case Point::northEast:
        return localized("NE");
    case Point::east:
        return localized("E");
    case Point::southEast:
        return localized("SE");
    case Point::south:
        return localized("S");
    case Point::southWest:
        return localized("SW");
    case Point::west:
        return localized("W");
    default:
        return localized("NW");
    }
}

} // namespace skyvane
