#pragma once

#include <QPalette>
#include <QProxyStyle>

#include <optional>

namespace skyvane {

/// The toolkit's own style, Fusion, with outlines that can be seen. Fusion derives them from the window's
/// colour by darkening it, which on a dark window leaves check boxes, fields and sliders nearly invisible.
class OutlinedStyle : public QProxyStyle {
    Q_OBJECT
public:
    OutlinedStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override;

private:
    /// A palette with visible outlines, and the key of the palette that it was made from.
    struct Outlined {
        qint64 key;
        double enough;
        QPalette palette;
    };

    const QPalette& outlined(const QPalette& palette, double enough = 3.8) const;

    mutable std::optional<Outlined> m_last; ///< Cache of one: nearly all widgets have the same palette.
};

} // namespace skyvane
