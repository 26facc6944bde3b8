#pragma once

#include "ui/tree/color.h"

#include <QColor>

namespace skyvane {

/// How far apart two colours are in lightness, 1 to 21, as accessibility guidelines count it.
double contrast(const QColor& one, const QColor& other);

/// The colour as text can be read in it on that background: itself where the contrast is 4.5 or more, else as
/// much darker or lighter as it takes.
QColor legible(const Color& color, const QColor& background);

} // namespace skyvane
