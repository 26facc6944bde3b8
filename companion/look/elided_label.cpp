#include "companion/look/elided_label.h"

#include <QEvent>

namespace skyvane {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::showText(const QString& text)
{
    m_whole = text;
    setAccessibleName(text);
    updateGeometry();
    elide();
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_whole), fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 3, fontMetrics().height()};
}

void ElidedLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        elide();
}

void ElidedLabel::elide()
{
    const QString shown = fontMetrics().elidedText(m_whole, Qt::ElideRight, width());
    setText(shown);
    setToolTip(shown == m_whole ? QString{} : m_whole);
}

} // namespace skyvane
