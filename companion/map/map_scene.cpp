#include "companion/map/map_scene.h"

#include "core/radar/great_circle.h"
#include "paint/to_qt.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace skyvane {

namespace {

/// Without points that nobody could tell from the one before.
QPolygonF outline(std::span<const Direction> points, const MapFrame& frame)
{
    constexpr double telling = 0.7; // Points of the screen.
    QPolygonF line;
    for (std::size_t index = 0; index < points.size(); ++index) {
        const QPointF place = frame.place(points[index]);
        const bool isEnd = index + 1 == points.size();
        if (line.isEmpty() || isEnd || (place - line.back()).manhattanLength() >= telling)
            line << place;
    }
    return line;
}

std::vector<QPolygonF> outlines(const MapData::Lines& lines, const MapFrame& frame)
{
    std::vector<QPolygonF> list;
    for (const MapData::Piece& piece : lines.pieces) {
        if (!frame.mayShow(piece.middle, piece.reach))
            continue;
        QPolygonF line = outline(lines.of(piece), frame);
        if (line.boundingRect().adjusted(-1, -1, 1, 1).intersects(frame.area()))
            list.push_back(std::move(line));
    }
    return list;
}

/// Finds room for names.
class Labels {
public:
    Labels(const QRectF& area, const QFontMetricsF& metrics) : m_area(area), m_metrics(metrics) { }

    /// Without a text where there is no room beside the place.
    MapScene::Mark marked(const QPointF& place, const QString& text)
    {
        constexpr double gap = 5;
        const double width = m_metrics.horizontalAdvance(text);
        const double top = place.y() - m_metrics.height() / 2;
        for (const double left : {place.x() + gap, place.x() - gap - width}) {
            const QRectF frame{left, top, width, m_metrics.height()};
            if (!m_area.contains(frame) || isTaken(frame))
                continue;
            m_taken.push_back(frame);
            return {.place = place, .text = text, .origin = {left, top + m_metrics.ascent()}};
        }
        return {.place = place, .text = {}, .origin = {}};
    }

    void take(const QRectF& frame) { m_taken.push_back(frame); }

private:
    bool isTaken(const QRectF& frame) const
    {
        return std::ranges::any_of(m_taken, [&](const QRectF& taken) { return taken.intersects(frame); });
    }

    QRectF m_area;
    const QFontMetricsF& m_metrics;
    std::vector<QRectF> m_taken;
};

/// Adds the airports within the radius, the large ones or the others.
void addAirports(MapScene& scene, const MapData& data, const MapFrame& frame, const MapSubject& subject,
    Labels& labels, std::size_t most, bool areLarge)
{
    if (!subject.home)
        return;
    for (std::size_t index = 0; index < data.airports.named.size(); ++index) {
        const Atlas::Airport& airport = data.airports.named[index];
        if (scene.airports.size() >= most)
            return;
        if (airport.isLarge != areLarge || !frame.mayShow(data.airports.places[index], 0))
            continue;
        const QPointF place = frame.place(data.airports.places[index]);
        if (frame.area().contains(place)
            && GreatCircle::distanceNM(*subject.home, airport.coordinate) <= subject.radiusNM)
            scene.airports.push_back(labels.marked(place, toQString(airport.code())));
    }
}

void addCities(MapScene& scene, const MapData& data, const MapFrame& frame, Labels& labels, std::size_t most)
{
    for (std::size_t index = 0; index < data.cities.named.size() && scene.cities.size() < most; ++index) {
        if (!frame.mayShow(data.cities.places[index], 0))
            continue;
        const QPointF place = frame.place(data.cities.places[index]);
        if (!frame.area().contains(place))
            continue;
        auto mark = labels.marked(place, toQString(data.cityNames[index]));
        if (!mark.text.isEmpty())
            scene.cities.push_back(std::move(mark));
    }
}

/// Every place at that distance from home.
QPolygonF ringAround(const Coordinate& home, double radiusNM, const MapFrame& frame)
{
    constexpr double degreesPerRadian = 180 / std::numbers::pi;
    constexpr int corners = 120;
    constexpr double nauticalMilesPerRadian = 3437.75;
    const double angle = radiusNM / nauticalMilesPerRadian;
    const double latitude = home.latitude / degreesPerRadian;
    QPolygonF ring;
    for (int corner = 0; corner <= corners; ++corner) {
        const double bearing = 2 * std::numbers::pi * corner / corners;
        const double sine
            = std::sin(latitude) * std::cos(angle) + std::cos(latitude) * std::sin(angle) * std::cos(bearing);
        const double east = std::atan2(std::sin(bearing) * std::sin(angle) * std::cos(latitude),
            std::cos(angle) - std::sin(latitude) * sine);
        ring << frame.place(Coordinate{.latitude = std::asin(std::clamp(sine, -1.0, 1.0)) * degreesPerRadian,
            .longitude = home.longitude + east * degreesPerRadian});
    }
    return ring;
}

void paintMarks(
    const std::vector<MapScene::Mark>& marks, const QColor& color, double radius, QPainter& painter)
{
    for (const MapScene::Mark& mark : marks) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(mark.place, radius, radius);
        painter.setPen(color);
        painter.drawText(mark.origin, mark.text);
    }
}

/// A square on its corner, which no city has.
void paintAirports(const std::vector<MapScene::Mark>& marks, const QColor& color, QPainter& painter)
{
    constexpr double half = 3;
    for (const MapScene::Mark& mark : marks) {
        painter.setPen(QPen{color, 1});
        painter.setBrush(Qt::NoBrush);
        painter.drawPolygon(QPolygonF{{{0, -half}, {half, 0}, {0, half}, {-half, 0}}}.translated(mark.place));
        painter.drawText(mark.origin, mark.text);
    }
}

} // namespace

MapScene MapScene::of(const MapData& data, const MapFrame& frame, const MapSubject& subject,
    const QFontMetricsF& metrics, const Density& density)
{
    MapScene scene{.coast = outlines(data.coast, frame), .borders = outlines(data.borders, frame)};
    Labels labels{frame.area(), metrics};
    if (subject.home && frame.mayShow(Direction::of(*subject.home), 0)) {
        constexpr double around = 8;
        scene.home = frame.place(*subject.home);
        labels.take({scene.home->x() - around, scene.home->y() - around, 2 * around, 2 * around});
        if (subject.radiusNM > 0 && std::isfinite(subject.radiusNM))
            scene.ring = ringAround(*subject.home, subject.radiusNM, frame);
    }
    addAirports(scene, data, frame, subject, labels, density.airports, /*areLarge=*/true);
    addCities(scene, data, frame, labels, density.cities);
    addAirports(scene, data, frame, subject, labels, density.airports, /*areLarge=*/false);
    return scene;
}

void paintMap(const MapScene& scene, const MapInk& ink, QPainter& painter)
{
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen{ink.border, 1, Qt::DashLine});
    for (const QPolygonF& line : scene.borders)
        painter.drawPolyline(line);
    painter.setPen(QPen{ink.coast, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    for (const QPolygonF& line : scene.coast)
        painter.drawPolyline(line);
    constexpr double cityRadius = 1.5;
    paintMarks(scene.cities, ink.city, cityRadius, painter);
    paintAirports(scene.airports, ink.airport, painter);
    if (!scene.ring.isEmpty()) {
        painter.setPen(QPen{ink.home, 1.5});
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(scene.ring);
    }
    if (scene.home) {
        constexpr double homeRadius = 4;
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink.home);
        painter.drawEllipse(*scene.home, homeRadius, homeRadius);
    }
    painter.restore();
}

} // namespace skyvane
