#pragma once

#include "companion/map/map_frame.h"

#include <QColor>
#include <QFontMetricsF>
#include <QPolygonF>
#include <QString>

#include <optional>
#include <vector>

class QPainter;

namespace skyvane {

/// What a map is drawn around.
struct MapSubject {
    std::optional<Coordinate> home{};
    double radiusNM = 0;
};

/// A map as it lies in its frame, ready to be painted.
struct MapScene {
    struct Mark {
        QPointF place;
        QString text; ///< Empty where there was no room for it.
        QPointF origin; ///< Of the text's baseline.
    };

    /// How much is written on it.
    struct Density {
        std::size_t cities = 40;
        std::size_t airports = 60;
    };

    std::vector<QPolygonF> coast{};
    std::vector<QPolygonF> borders{};
    std::vector<Mark> cities{};
    std::vector<Mark> airports{}; ///< Those within the radius.
    std::optional<QPointF> home{};
    QPolygonF ring{}; ///< The radius around home; empty without one.

    /// Names that would lie on others, or beyond the frame's area, are left out; of cities the marks, too.
    static MapScene of(const MapData& data, const MapFrame& frame, const MapSubject& subject,
        const QFontMetricsF& metrics, const Density& density);
};

/// The colours of a map.
struct MapInk {
    QColor coast;
    QColor border;
    QColor city;
    QColor airport;
    QColor home;
};

void paintMap(const MapScene& scene, const MapInk& ink, QPainter& painter);

} // namespace skyvane
