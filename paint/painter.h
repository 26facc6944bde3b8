#pragma once

#include "paint/font_measurer.h"
#include "ui/layout/display_list.h"

class QPainter;

namespace skyvane {

/// How text reaches the page: as glyphs for a screen, or as outlines that look the same wherever they are
/// opened.
enum class TextForm { glyphs, outlines };

/// Paints the list with its top left corner at the origin, one logical unit a point whatever the device's
/// resolution.
void paint(
    const DisplayList& list, QPainter& painter, const FontMeasurer& fonts, TextForm form = TextForm::glyphs);

} // namespace skyvane
