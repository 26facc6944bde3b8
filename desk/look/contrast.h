#pragma once

#include "ui/tree/color.h"

#include <QColor>
#include <QPalette>

namespace skyvane {

/// How far apart two colours are in lightness, 1 to 21, as accessibility guidelines count it.
double contrast(const QColor& one, const QColor& other);

/// The same of a translucent colour as it comes out on an opaque background.
double contrastOn(const Color& background, const Color& color);

/// The colour, made darker or lighter until text in it can be read on that background: to a contrast of 4.5.
QColor legible(const Color& color, const QColor& background);

/// The colour, made darker or lighter until its contrast to the background is `enough`.
QColor setApart(const QColor& color, const QColor& background, double enough);

/// What a control is outlined in, to be seen on the window. Accessibility guidelines ask for a contrast of 3;
/// a style may draw it a little lighter.
QColor outlineOn(const QPalette& palette, double enough = 3.8);

} // namespace skyvane
