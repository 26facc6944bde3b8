#include "companion/aircraft/sky_dome.h"

#include "companion/look/type_scale.h"
#include "desk/look/contrast.h"
#include "desk/text.h"
#include "paint/pictograms.h"
#include "paint/widget_card.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace skyvane {

namespace {

constexpr double glyphSize = 18;

QPointF towards(double bearingDeg, double length)
{
    const double bearing = bearingDeg * std::numbers::pi / 180;
    return {length * std::sin(bearing), -length * std::cos(bearing)};
}

} // namespace

SkyDome::SkyDome(QWidget* parent) : QWidget(parent)
{
    setAccessibleName(localizedText("The sky from home"));
}

void SkyDome::showSky(Content content, const QString& words)
{
    m_content = std::move(content);
    setAccessibleDescription(words);
    update();
}

double SkyDome::radius() const
{
    const double letters = QFontMetricsF{TypeScale::small(font())}.height();
    return std::min(width(), height()) / 2.0 - letters - 10;
}

QPointF SkyDome::placeOf(const WhereToLook& where) const
{
    const double elevation = std::clamp(where.elevationDeg.value_or(0), 0.0, 90.0);
    return QRectF{rect()}.center() + towards(where.bearingDeg, radius() * (1 - elevation / 90));
}

void SkyDome::paintEvent(QPaintEvent*)
{
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQt(m_content.palette.background));
    painter.drawRoundedRect(rect(), WidgetCard::cornerRadius, WidgetCard::cornerRadius);
    paintRings(painter);
    paintCompass(painter);
    paintPath(painter);
    paintAircraft(painter);
}

/// The horizon, and 30 and 60 degrees above it.
void SkyDome::paintRings(QPainter& painter) const
{
    const QPointF center = QRectF{rect()}.center();
    const ScopePalette& palette = m_content.palette;
    painter.setBrush(Qt::NoBrush);
    painter.setFont(TypeScale::small(font()));
    for (const int elevation : {0, 30, 60}) {
        const double ring = radius() * (90 - elevation) / 90;
        painter.setPen(QPen{toQt(elevation == 0 ? palette.dim() : palette.faint()), 1});
        painter.drawEllipse(center, ring, ring);
        if (elevation == 0)
            continue;
        painter.setPen(toQt(palette.dim()));
        painter.drawText(center + towards(45, ring) + QPointF{2, -2}, QStringLiteral("%1°").arg(elevation));
    }
    painter.setPen(QPen{toQt(palette.faint()), 0.5});
    for (const double bearing : {0.0, 90.0})
        painter.drawLine(center + towards(bearing, radius()), center - towards(bearing, radius()));
}

void SkyDome::paintCompass(QPainter& painter) const
{
    const std::array letters{std::pair{0, localizedText("N")}, std::pair{90, localizedText("E")},
        std::pair{180, localizedText("S")}, std::pair{270, localizedText("W")}};
    painter.setFont(TypeScale::strong(TypeScale::small(font())));
    painter.setPen(legible(m_content.palette.phosphor, toQt(m_content.palette.background)));
    const double letter = QFontMetricsF{painter.font()}.height();
    for (const auto& [bearing, text] : letters) {
        const QPointF place = QRectF{rect()}.center() + towards(bearing, radius() + letter / 2 + 2);
        painter.drawText(
            QRectF{place - QPointF{letter, letter / 2}, QSizeF{2 * letter, letter}}, Qt::AlignCenter, text);
    }
}

/// Dotted, and the highest point of it in degrees.
void SkyDome::paintPath(QPainter& painter) const
{
    const auto& path = m_content.path;
    if (path.size() < 2)
        return;
    QPolygonF line;
    for (const SkyPathPoint& point : path)
        line << placeOf(point.where);
    painter.setPen(QPen{m_content.color, 1.5, Qt::DotLine});
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(line);
    const auto top = std::ranges::max_element(
        path, {}, [](const SkyPathPoint& point) { return point.where.elevationDeg.value_or(0); });
    if (top == path.begin())
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_content.color);
    painter.drawEllipse(placeOf(top->where), 3, 3);
    painter.setPen(m_content.color);
    painter.setFont(TypeScale::small(font()));
    painter.drawText(placeOf(top->where) + QPointF{6, -4},
        QStringLiteral("%1°").arg(std::llround(top->where.elevationDeg.value_or(0))));
}

/// With its nose where it goes: along its way, else along its track.
void SkyDome::paintAircraft(QPainter& painter) const
{
    const QPainterPath* airplane = pictogramOutline("airplane");
    if (!m_content.where || airplane == nullptr)
        return;
    const QPointF place = placeOf(*m_content.where);
    double heading = m_content.track.value_or(m_content.where->bearingDeg) - 90;
    if (m_content.path.size() > 1) {
        const QPointF ahead = placeOf(m_content.path[1].where) - placeOf(m_content.path[0].where);
        if (std::hypot(ahead.x(), ahead.y()) > 0.1)
            heading = std::atan2(ahead.y(), ahead.x()) * 180 / std::numbers::pi;
    }
    painter.save();
    painter.translate(place);
    painter.rotate(heading);
    painter.scale(glyphSize, glyphSize);
    painter.fillPath(*airplane, m_content.color);
    painter.restore();
}

} // namespace skyvane
