#pragma once

#include "core/model/aircraft.h"

namespace skyvane {

/// In an Earth of radius 1: x through the equator at Greenwich, z through the pole.
struct EarthVector {
    double x;
    double y;
    double z;

    double dot(const EarthVector& other) const { return x * other.x + y * other.y + z * other.z; }

    EarthVector operator*(double factor) const { return {x * factor, y * factor, z * factor}; }
    EarthVector operator+(const EarthVector& other) const { return {x + other.x, y + other.y, z + other.z}; }
};

/// A place on the Earth, and which way north and east are there.
struct EarthFrame {
    EarthVector up;
    EarthVector north;
    EarthVector east;

    static EarthFrame at(const Coordinate& place);

    EarthVector towards(double bearingDeg) const;
    double bearing(const EarthVector& place) const;
    /// The angle at Earth's centre.
    double distance(const EarthVector& place) const;
};

} // namespace skyvane
