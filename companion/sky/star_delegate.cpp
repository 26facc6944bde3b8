#include "companion/sky/star_delegate.h"

#include "companion/look/star_shape.h"
#include "companion/sky/sky_model.h"

#include <QPainter>

namespace skyvane {

void StarDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    paintBackground(*painter, option, index);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isOn = index.data(SkyModel::StarRole).toBool();
    const QPalette::ColorRole quiet = isOn ? QPalette::Text : QPalette::PlaceholderText;
    const QColor color = option.palette.color(isSelected ? QPalette::HighlightedText : quiet);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(QRectF{option.rect}.center() - QPointF{size / 2.0, size / 2.0});
    painter->setPen(QPen{color, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    if (isOn)
        painter->setBrush(color);
    painter->drawPath(starShape());
    painter->restore();
}

} // namespace skyvane
