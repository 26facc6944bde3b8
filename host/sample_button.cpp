#include "host/sample_button.h"

#include "paint/widget_card.h"

#include <QPainter>

namespace skyvane {

SampleButton::SampleButton(ContainerFamily family, const FontMeasurer& fonts)
    : m_family(family)
    , m_fonts(fonts)
    , m_background(WidgetCard::emptyBackground)
    , m_list{.size = WidgetContainer::size(family)}
{
    setFixedSize(WidgetCard::sizeOf(family));
    setCursor(Qt::PointingHandCursor);
}

void SampleButton::showSample(const WidgetEntry& entry)
{
    m_background = entry.background;
    m_list = WidgetContainer::layout(entry.view, m_family, m_fonts);
    update();
}

void SampleButton::paintEvent(QPaintEvent*)
{
    QPainter painter{this};
    WidgetCard::paint(m_list, m_background, painter, m_fonts);
    if (hasFocus())
        WidgetCard::paintFocus(rect(), WidgetCard::cornerRadius, painter);
}

} // namespace skyvane
