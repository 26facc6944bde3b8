#include "paint/widget_card.h"

#include "paint/to_qt.h"

#include <QPainter>
#include <QPainterPath>

namespace skyvane::WidgetCard {

QSize sizeOf(WidgetFamily family)
{
    const Size size = WidgetContainer::size(family);
    return QSizeF{size.width, size.height}.toSize();
}

void paintBackground(const Size& size, const Color& background, QPainter& painter)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect({0, 0, size.width, size.height}, cornerRadius, cornerRadius);
    painter.fillPath(shape, toQt(background));
    painter.restore();
}

void paintFocus(const QRectF& frame, double radius, QPainter& painter)
{
    constexpr double lineWidth = 2;
    constexpr Color color{0.3, 0.6, 1};
    const double half = lineWidth / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen{toQt(color), lineWidth});
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame.adjusted(half, half, -half, -half), radius - half, radius - half);
}

void paintMark(Mark mark, double width, QPainter& painter, TextDirection direction)
{
    constexpr double inset = 13;
    constexpr double radius = 3;
    constexpr Color stale{1, 0.7, 0.2};
    constexpr Color refreshing{0.65, 0.7, 0.75};
    if (mark == Mark::none)
        return;
    const bool isDot = mark == Mark::stale;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(isDot ? QPen{Qt::NoPen} : QPen{toQt(refreshing), 1.5});
    painter.setBrush(isDot ? QBrush{toQt(stale)} : QBrush{Qt::NoBrush});
    const double x = direction == TextDirection::rightToLeft ? inset : width - inset;
    painter.drawEllipse(QPointF{x, inset}, radius, radius);
}

} // namespace skyvane::WidgetCard
