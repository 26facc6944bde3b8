#pragma once

#include "companion/aircraft/sky_path.h"
#include "companion/aircraft/where_to_look.h"
#include "core/config/scope_palette.h"

#include <QColor>
#include <QWidget>

#include <optional>
#include <vector>

namespace skyvane {

/// The whole sky as one sees it from home: the horizon around, what is overhead in the middle, north up and
/// east to the right as on the scope; the aircraft in it, and its way over the next minutes.
class SkyDome : public QWidget {
    Q_OBJECT
public:
    struct Content {
        std::optional<WhereToLook> where{}; ///< Absent: the sky without the aircraft.
        std::optional<double> track{}; ///< Degrees from true north.
        std::vector<SkyPathPoint> path{};
        QColor color{};
        ScopePalette palette = ScopePalette::standard();
    };

    explicit SkyDome(QWidget* parent = nullptr);

    /// `words`: the same for a screen reader.
    void showSky(Content content, const QString& words);

    /// Where on the widget one looks in that direction; below the horizon, on it.
    QPointF placeOf(const WhereToLook& where) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double radius() const;
    void paintRings(QPainter& painter) const;
    void paintCompass(QPainter& painter) const;
    void paintPath(QPainter& painter) const;
    void paintAircraft(QPainter& painter) const;

    Content m_content;
};

} // namespace skyvane
