#include "companion/sky/flat_header.h"

#include "companion/sky/cell_delegate.h"

#include <QPainter>

namespace skyvane {

namespace {

/// A triangle with its base up, or down.
QPolygonF arrow(const QPointF& center, bool pointsDown)
{
    constexpr double halfWidth = 3.5;
    const double tip = pointsDown ? 2 : -2;
    return QPolygonF{{{-halfWidth, -tip}, {halfWidth, -tip}, {0, tip}}}.translated(center);
}

} // namespace

FlatHeader::FlatHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setHighlightSections(false);
    setSectionsMovable(false);
}

void FlatHeader::paintSection(QPainter* painter, const QRect& frame, int column) const
{
    constexpr int margin = CellDelegate::margin;
    painter->save();
    painter->fillRect(frame, palette().color(QPalette::Base));
    painter->setPen(palette().color(QPalette::Mid));
    painter->drawLine(frame.bottomLeft(), frame.bottomRight());
    const QColor text = palette().color(QPalette::Text);
    painter->setPen(text);
    painter->setFont(font());
    const auto alignment = model()->headerData(column, orientation(), Qt::TextAlignmentRole);
    painter->drawText(frame.adjusted(margin, 0, -margin, 0),
        static_cast<int>(alignment.value<Qt::Alignment>()),
        model()->headerData(column, orientation()).toString());
    if (isSortIndicatorShown() && sortIndicatorSection() == column) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(text);
        constexpr double inset = 0.5 + margin / 2.0;
        const double x = isRightToLeft() ? frame.left() + inset : frame.right() + 1 - inset;
        painter->drawPolygon(
            arrow(QPointF{x, frame.center().y() + 0.5}, sortIndicatorOrder() == Qt::AscendingOrder));
    }
    painter->restore();
}

/// What lies past the last column, too.
void FlatHeader::paintEvent(QPaintEvent* event)
{
    QPainter{viewport()}.fillRect(viewport()->rect(), palette().color(QPalette::Base));
    QHeaderView::paintEvent(event);
}

} // namespace skyvane
