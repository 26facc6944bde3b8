#include "companion/map/map_data.h"

#include "companion/atlas/own_names.h"
#include "platform/text/catalogue.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace skyvane {

namespace {

float distance(const Direction& one, const Direction& other)
{
    const float x = one.x - other.x;
    const float y = one.y - other.y;
    const float z = one.z - other.z;
    const float chord = std::sqrt(x * x + y * y + z * z);
    return 2 * std::asin(std::min(chord / 2, 1.0F));
}

MapData::Lines ready(const Atlas::Lines& lines)
{
    MapData::Lines made;
    made.points.reserve(lines.points.size());
    for (const auto& [latitude, longitude] : lines.points)
        made.points.push_back(Direction::of({.latitude = latitude, .longitude = longitude}));
    made.pieces.reserve(lines.pieces.size());
    for (const Atlas::Lines::Piece& piece : lines.pieces) {
        MapData::Piece other{.first = piece.first,
            .count = piece.count,
            .middle = Direction::of({.latitude = (piece.southWest.latitude + piece.northEast.latitude) / 2,
                .longitude = (piece.southWest.longitude + piece.northEast.longitude) / 2}),
            .reach = 0};
        for (const Direction& point : made.of(other))
            other.reach = std::max(other.reach, distance(other.middle, point));
        made.pieces.push_back(other);
    }
    return made;
}

template <class Named>
MapData::Marks<Named> ready(std::vector<Named> named)
{
    MapData::Marks<Named> marks;
    marks.places.reserve(named.size());
    for (const Named& one : named)
        marks.places.push_back(Direction::of(one.coordinate));
    marks.named = std::move(named);
    return marks;
}

/// Of cities of one name the largest is the one that other languages have a name for.
std::vector<std::string> namesOf(const std::vector<Atlas::City>& cities)
{
    auto own = Atlas::ownNames("/usr/share/locale", Catalogues::wanted());
    std::vector<std::string> names;
    names.reserve(cities.size());
    for (const Atlas::City& city : cities) {
        const auto found = own.extract(std::string{city.name});
        names.push_back(found.empty() ? std::string{city.name} : found.mapped());
    }
    return names;
}

} // namespace

Direction Direction::of(const Coordinate& coordinate)
{
    const double latitude = coordinate.latitude * std::numbers::pi / 180;
    const double longitude = coordinate.longitude * std::numbers::pi / 180;
    return {.x = static_cast<float>(std::cos(latitude) * std::cos(longitude)),
        .y = static_cast<float>(std::cos(latitude) * std::sin(longitude)),
        .z = static_cast<float>(std::sin(latitude))};
}

MapData MapData::load()
{
    const Atlas::Earth earth = Atlas::earth();
    auto cities = ready(Atlas::cities());
    auto names = namesOf(cities.named);
    return {.coast = ready(earth.coast),
        .borders = ready(earth.borders),
        .cities = std::move(cities),
        .cityNames = std::move(names),
        .airports = ready(Atlas::airports())};
}

} // namespace skyvane
