#include "companion/aircraft/photo_card.h"

#include "companion/photo/photo_image.h"
#include "paint/pictograms.h"

#include <QPainter>
#include <QPainterPath>

namespace skyvane {

namespace {

constexpr double cornerRadius = 14;

/// The part of the image that fills a frame of that shape, its middle.
QRectF filling(const QSizeF& image, const QSizeF& frame)
{
    const QSizeF part = frame.scaled(image, Qt::KeepAspectRatio);
    return {QPointF{(image.width() - part.width()) / 2, (image.height() - part.height()) / 2}, part};
}

} // namespace

PhotoCard::PhotoCard(QWidget* parent) : QAbstractButton(parent)
{
    setFixedSize(photoSize);
    showImage({}, /*leadsSomewhere=*/false);
}

void PhotoCard::showImage(const QImage& image, bool leadsSomewhere)
{
    m_image = image;
    setEnabled(leadsSomewhere);
    setCursor(leadsSomewhere ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setFocusPolicy(leadsSomewhere ? Qt::StrongFocus : Qt::NoFocus);
    update();
}

QSize PhotoCard::sizeHint() const
{
    return photoSize;
}

void PhotoCard::paintEvent(QPaintEvent*)
{
    QPainter painter{this};
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QPainterPath shape;
    shape.addRoundedRect(rect(), cornerRadius, cornerRadius);
    painter.save();
    painter.setClipPath(shape);
    painter.fillRect(rect(), palette().color(QPalette::AlternateBase));
    if (!m_image.isNull()) {
        painter.drawImage(QRectF{rect()}, m_image, filling(m_image.size(), rect().size()));
    } else if (const QPainterPath* airplane = pictogramOutline("airplane")) {
        constexpr double size = 56;
        painter.translate(QRectF{rect()}.center());
        painter.scale(size, size);
        QColor faint = palette().color(QPalette::Text);
        faint.setAlphaF(0.12F);
        painter.fillPath(*airplane, faint);
    }
    painter.restore();
    if (hasFocus()) {
        constexpr double line = 2;
        painter.setPen(QPen{palette().color(QPalette::Highlight), line});
        painter.drawRoundedRect(QRectF{rect()}.adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
    }
}

} // namespace skyvane
