#include "companion/sky/scope_layer.h"

#include "companion/look/type_scale.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace skyvane::ScopeLayer {

namespace {

constexpr double ringRadius = 10;
constexpr double padding = 5;
constexpr double longestLine = 220;

QFont fontOf(const QPainter& painter, qsizetype line)
{
    const QFont small = TypeScale::small(painter.font());
    return line == 0 ? TypeScale::strong(small) : small;
}

QString fitted(const QString& line, const QFont& font)
{
    return QFontMetricsF{font}.elidedText(line, Qt::ElideRight, longestLine);
}

QSizeF sizeOf(const QPainter& painter, const Label& label)
{
    QSizeF size{0, 0};
    for (qsizetype line = 0; line < label.lines.size(); ++line) {
        const QFont font = fontOf(painter, line);
        const QFontMetricsF metrics{font};
        const double width = metrics.horizontalAdvance(fitted(label.lines[line], font));
        size = {std::max(size.width(), width), size.height() + metrics.height()};
    }
    return size.grownBy({padding, padding / 2, padding, padding / 2});
}

/// To the right of the blip, else to its left.
QRectF placed(const QSizeF& size, const QPointF& blip, const QRectF& frame)
{
    constexpr double gap = ringRadius + 4;
    QRectF place{{blip.x() + gap, blip.y() - size.height() / 2}, size};
    if (place.right() > frame.right())
        place.moveRight(blip.x() - gap);
    place.moveLeft(std::max(place.left(), frame.left()));
    place.moveTop(std::max(std::min(place.top(), frame.bottom() - size.height()), frame.top()));
    return place;
}

} // namespace

void paintTrail(QPainter& painter, const QPolygonF& places, QColor color)
{
    color.setAlphaF(0.6F);
    painter.setPen(QPen{color, 1.5});
    painter.drawPolyline(places);
}

void paintMark(QPainter& painter, const Aircraft& aircraft, const QPointF& blip, const QColor& color)
{
    painter.setPen(QPen{color, 1.5});
    painter.setBrush(Qt::NoBrush);
    if (aircraft.isEmergency())
        painter.drawPolygon(QPolygonF{{{0, -13}, {11.5, 7}, {-11.5, 7}}}.translated(blip));
    else if (aircraft.isMilitary())
        painter.drawPolygon(QPolygonF{{{0, -9}, {9, 0}, {0, 9}, {-9, 0}}}.translated(blip));
}

void paintSelection(QPainter& painter, const QPointF& blip, const QColor& color)
{
    painter.setPen(QPen{color, 2});
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(blip, ringRadius, ringRadius);
}

void paintLabel(QPainter& painter, const Label& label, const QPointF& blip, const QRectF& frame)
{
    painter.save();
    const QRectF place = placed(sizeOf(painter, label), blip, frame);
    QColor border = label.text;
    border.setAlphaF(0.5F);
    painter.setPen(QPen{border, 1});
    painter.setBrush(label.background);
    painter.drawRoundedRect(place, padding, padding);
    painter.setPen(label.text);
    QPointF corner = place.topLeft() + QPointF{padding, padding / 2};
    const QFont own = painter.font();
    for (qsizetype line = 0; line < label.lines.size(); ++line) {
        painter.setFont(own);
        painter.setFont(fontOf(painter, line));
        const QFontMetricsF metrics{painter.font()};
        painter.drawText(corner + QPointF{0, metrics.ascent()}, fitted(label.lines[line], painter.font()));
        corner.ry() += metrics.height();
    }
    painter.restore();
}

} // namespace skyvane::ScopeLayer
