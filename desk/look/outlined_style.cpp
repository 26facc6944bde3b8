#include "desk/look/outlined_style.h"

#include "desk/look/contrast.h"

#include <QStyleOption>

namespace skyvane {

namespace {

/// Draws with a copy of the option in that palette, if it is of that kind. Whether it is.
template <class Option, class Draw>
bool drawIn(const QPalette& palette, const QStyleOption* option, const Draw& draw)
{
    const auto* own = qstyleoption_cast<const Option*>(option);
    if (own == nullptr)
        return false;
    Option changed = *own;
    changed.palette = palette;
    draw(&changed);
    return true;
}

/// Such that Fusion, which darkens the window's colour by 1.4 for outlines and the highlight by 1.25 for
/// those of what has the focus, comes to colours that are seen.
QPalette withVisibleOutlines(QPalette palette, double enough)
{
    constexpr float byOutline = 1.4F;
    constexpr double enoughForFocus = 5;
    const QColor outline = outlineOn(palette, enough);
    const QColor window = palette.color(QPalette::Window);
    const auto brighter = [](float channel) { return qMin(channel * byOutline, 1.0F); };
    palette.setColor(QPalette::Window,
        QColor::fromRgbF(brighter(outline.redF()), brighter(outline.greenF()), brighter(outline.blueF())));
    palette.setColor(
        QPalette::Highlight, setApart(palette.color(QPalette::Highlight), window, enoughForFocus));
    return palette;
}

} // namespace

OutlinedStyle::OutlinedStyle() : QProxyStyle(QStringLiteral("fusion")) { }

const QPalette& OutlinedStyle::outlined(const QPalette& palette, double enough) const
{
    const qint64 key = palette.cacheKey();
    const bool isOutlinedAlready = m_last && m_last->palette.cacheKey() == key;
    if (!isOutlinedAlready && (!m_last || m_last->key != key || m_last->enough != enough))
        m_last = {.key = key, .enough = enough, .palette = withVisibleOutlines(palette, enough)};
    m_last->palette.setCurrentColorGroup(palette.currentColorGroup());
    return m_last->palette;
}

void OutlinedStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    const auto draw
        = [&](const QStyleOption* changed) { QProxyStyle::drawPrimitive(element, changed, painter, widget); };
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
    case PE_PanelButtonCommand:
        if (drawIn<QStyleOptionButton>(outlined(option->palette), option, draw))
            return;
        break;
    case PE_FrameLineEdit:
    case PE_PanelLineEdit:
        if (drawIn<QStyleOptionFrame>(outlined(option->palette), option, draw))
            return;
        break;
    default:
        break;
    }
    draw(option);
}

void OutlinedStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    const auto draw = [&](const QStyleOptionComplex* changed) {
        QProxyStyle::drawComplexControl(control, changed, painter, widget);
    };
    switch (control) {
    case CC_ComboBox:
        if (drawIn<QStyleOptionComboBox>(outlined(option->palette), option, draw))
            return;
        break;
    case CC_ScrollBar: // Whose outlines let something of what is below through.
        if (drawIn<QStyleOptionSlider>(outlined(option->palette, /*enough=*/6), option, draw))
            return;
        break;
    case CC_Slider:
        if (drawIn<QStyleOptionSlider>(outlined(option->palette), option, draw))
            return;
        break;
    case CC_SpinBox:
        if (drawIn<QStyleOptionSpinBox>(outlined(option->palette), option, draw))
            return;
        break;
    default:
        break;
    }
    draw(option);
}

} // namespace skyvane
