#pragma once

#include "core/config/scope_palette.h"
#include "core/model/aircraft.h"
#include "ui/tree/build.h"

namespace skyvane {

/// The aeroplane that stands for an aircraft in a list: nose along its track, else to the right, in its
/// blip's colour.
Styled<Symbol> headingGlyph(const Aircraft& aircraft, const ScopePalette& palette, Font font);

} // namespace skyvane
