#include "companion/settings/swatch_button.h"

#include "desk/look/contrast.h"

#include <QPainter>
#include <QSizePolicy>

namespace skyvane {

namespace {

constexpr double ringWidth = 2;
constexpr double gap = 3;

} // namespace

SwatchButton::SwatchButton(const QColor& color, const QString& name, QWidget* parent)
    : QAbstractButton(parent), m_color(color)
{
    setCheckable(true);
    setAutoExclusive(true); // One of several, and a radio button to a screen reader.
    setAccessibleName(name);
    setToolTip(name);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
}

void SwatchButton::setColor(const QColor& color)
{
    m_color = color;
    update();
}

QSize SwatchButton::sizeHint() const
{
    const int side = qMax(fontMetrics().height() * 2, 28);
    return {side, side};
}

void SwatchButton::paintEvent(QPaintEvent*)
{
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ring = QRectF{rect()}.adjusted(ringWidth / 2, ringWidth / 2, -ringWidth / 2, -ringWidth / 2);
    const double inset = ringWidth + gap;
    painter.setPen(QPen{outlineOn(palette()), 1});
    painter.setBrush(m_color);
    painter.drawEllipse(QRectF{rect()}.adjusted(inset, inset, -inset, -inset));
    painter.setBrush(Qt::NoBrush);
    if (isChecked()) {
        painter.setPen(QPen{palette().color(QPalette::WindowText), ringWidth});
        painter.drawEllipse(ring);
    }
    if (hasFocus()) {
        painter.setPen(QPen{palette().color(QPalette::Highlight), ringWidth});
        painter.drawEllipse(isChecked() ? ring.adjusted(ringWidth, ringWidth, -ringWidth, -ringWidth) : ring);
    }
}

} // namespace skyvane
