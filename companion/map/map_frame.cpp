#include "companion/map/map_frame.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace skyvane {

namespace {

constexpr double degreesPerRadian = 180 / std::numbers::pi;

} // namespace

MapFrame::MapFrame(const Coordinate& middle, double pointsPerNM, const QRectF& area)
    : m_area(area)
    , m_scale(pointsPerNM * earthRadiusNM)
    , m_reach(std::hypot(area.width(), area.height()) / 2 / m_scale)
{
    const double latitude = middle.latitude / degreesPerRadian;
    const double longitude = middle.longitude / degreesPerRadian;
    const double sine = std::sin(latitude);
    const double cosine = std::cos(latitude);
    m_up = {.x = cosine * std::cos(longitude), .y = cosine * std::sin(longitude), .z = sine};
    m_east = {.x = -std::sin(longitude), .y = std::cos(longitude), .z = 0};
    m_north = {.x = -sine * std::cos(longitude), .y = -sine * std::sin(longitude), .z = cosine};
}

QPointF MapFrame::place(const Direction& direction) const
{
    const double east = m_east.along(direction);
    const double north = m_north.along(direction);
    const double sine = std::hypot(east, north);
    constexpr double tiny = 1e-9;
    const double stretch = sine > tiny ? std::atan2(sine, m_up.along(direction)) / sine : 1;
    return m_area.center() + QPointF{east, -north} * (stretch * m_scale);
}

std::optional<Coordinate> MapFrame::coordinate(const QPointF& place) const
{
    const QPointF away = (place - m_area.center()) / m_scale;
    const double angle = std::hypot(away.x(), away.y());
    if (angle > std::numbers::pi)
        return std::nullopt;
    const double stretch = angle > 0 ? std::sin(angle) / angle : 1;
    const double east = away.x() * stretch;
    const double north = -away.y() * stretch;
    const double up = std::cos(angle);
    const auto along = [&](double Axis::*axis) {
        return up * (m_up.*axis) + east * (m_east.*axis) + north * (m_north.*axis);
    };
    return Coordinate{.latitude = std::asin(std::clamp(along(&Axis::z), -1.0, 1.0)) * degreesPerRadian,
        .longitude = std::atan2(along(&Axis::y), along(&Axis::x)) * degreesPerRadian};
}

bool MapFrame::mayShow(const Direction& direction, double reach) const
{
    constexpr double farSide = 2.6; // Radians.
    const double farthest = std::min(m_reach + reach, farSide);
    return m_up.along(direction) >= std::cos(farthest);
}

} // namespace skyvane
