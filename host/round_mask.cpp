#include "host/round_mask.h"

#include "paint/widget_card.h"

#include <QPainter>

namespace skyvane {

QBitmap roundMask(QSize size)
{
    QBitmap mask{size};
    mask.clear();
    QPainter painter{&mask};
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(QRect{{}, size}, WidgetCard::cornerRadius, WidgetCard::cornerRadius);
    return mask;
}

} // namespace skyvane
