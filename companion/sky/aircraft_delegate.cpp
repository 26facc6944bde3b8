#include "companion/sky/aircraft_delegate.h"

#include "companion/look/type_scale.h"
#include "companion/sky/sky_model.h"
#include "desk/look/contrast.h"
#include "paint/pictograms.h"

#include <QPainter>
#include <QStyle>

namespace skyvane {

namespace {

constexpr int glyphSize = 16;

Color fromQt(const QColor& color)
{
    return {.red = color.redF(), .green = color.greenF(), .blue = color.blueF()};
}

struct Colors {
    QColor glyph;
    QColor name;
};

Colors colorsOf(const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (option.state.testFlag(QStyle::State_Selected)) {
        const QColor selected = option.palette.color(QPalette::HighlightedText);
        return {.glyph = selected, .name = selected};
    }
    const QColor base = option.palette.color(QPalette::Base);
    const QColor blip = legible(fromQt(index.data(SkyModel::BlipRole).value<QColor>()), base);
    const bool isSetApart = !index.data(SkyModel::BadgeRole).toString().isEmpty();
    return {.glyph = blip, .name = isSetApart ? blip : option.palette.color(QPalette::Text)};
}

/// Nose along the track, else to the right.
void paintGlyph(QPainter& painter, const QRectF& square, const QVariant& track, const QColor& color)
{
    const QPainterPath* airplane = pictogramOutline("airplane");
    if (airplane == nullptr)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.center());
    painter.rotate(track.isValid() ? track.toDouble() - 90 : 0);
    painter.scale(square.width(), square.height());
    painter.fillPath(*airplane, color);
    painter.restore();
}

/// Where a part of a cell stands that is given as it is from left to right.
QRect mirrored(const QRect& part, const QStyleOptionViewItem& option)
{
    return QStyle::visualRect(option.direction, option.rect, part);
}

/// At the end of the frame. Its width, gap included.
int paintBadge(QPainter& painter, const QRect& frame, const QString& badge,
    const QStyleOptionViewItem& option, const QColor& color)
{
    if (badge.isEmpty())
        return 0;
    const QFont font = TypeScale::small(painter.font());
    const QFontMetrics metrics{font};
    const QSize size{metrics.horizontalAdvance(badge) + CellDelegate::margin, metrics.height() + 2};
    const QPoint corner{frame.right() - size.width(), frame.center().y() - size.height() / 2};
    const QRect pill = mirrored({corner, size}, option);
    painter.save();
    painter.setFont(font);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen{color, 1});
    painter.drawRoundedRect(
        QRectF{pill}.adjusted(0.5, 0.5, -0.5, -0.5), size.height() / 2.0, size.height() / 2.0);
    painter.drawText(pill, Qt::AlignCenter, badge);
    painter.restore();
    return size.width() + CellDelegate::margin;
}

} // namespace

int AircraftDelegate::width(int name, int badge)
{
    return glyphSize + margin + name + badge + 2 * margin;
}

void AircraftDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    paintBackground(*painter, option, index);
    const auto [glyph, text] = colorsOf(option, index);
    QRect frame = option.rect.adjusted(margin, 0, -margin, 0);
    const QRect place = mirrored({frame.left(), frame.top(), glyphSize, frame.height()}, option);
    const QRectF square{
        QPointF(place.left(), frame.center().y() - glyphSize / 2.0 + 0.5), QSizeF(glyphSize, glyphSize)};
    paintGlyph(*painter, square, index.data(SkyModel::TrackRole), glyph);
    frame.setLeft(frame.left() + glyphSize + margin);

    painter->save();
    painter->setFont(option.font);
    const QString badge = index.data(SkyModel::BadgeRole).toString();
    frame.setRight(frame.right() - paintBadge(*painter, frame, badge, option, text));
    const QFont font = TypeScale::strong(option.font);
    painter->setFont(font);
    painter->setPen(text);
    painter->drawText(mirrored(frame, option), Qt::AlignLeft | Qt::AlignVCenter,
        QFontMetrics{font}.elidedText(index.data().toString(), Qt::ElideRight, frame.width()));
    painter->restore();
}

} // namespace skyvane
