#pragma once

#include "ui/tree/color.h"

#include <QColor>
#include <QPalette>

namespace skyvane {

/// How far apart two colours are in lightness, 1 to 21, as accessibility guidelines count it.
double contrast(const QColor& one, const QColor& other);

/// The colour as text can be read in it on that background: itself where the contrast is 4.5 or more, else as
/// much darker or lighter as it takes.
QColor legible(const Color& color, const QColor& background);

/// The same for any contrast.
QColor setApart(const QColor& color, const QColor& background, double enough);

/// What a control is outlined in, to be seen on the window. Accessibility guidelines ask for a contrast of 3;
/// a style may draw it a little lighter.
QColor outlineOn(const QPalette& palette, double enough = 3.8);

} // namespace skyvane
