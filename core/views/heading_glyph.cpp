#include "core/views/heading_glyph.h"

namespace skyvane {

Styled<Symbol> headingGlyph(const Aircraft& aircraft, const ScopePalette& palette, Font font)
{
    const double rotation = aircraft.track ? *aircraft.track - 90 : 0;
    return symbol("airplane").font(font).rotated(rotation).foreground(aircraft.blipColor(palette));
}

} // namespace skyvane
