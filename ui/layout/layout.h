#pragma once

#include "platform/text/text_direction.h"
#include "ui/layout/display_list.h"
#include "ui/tree/view.h"

namespace skyvane {

/// Lays the view out in the middle of a space of this size. A parent proposes a size, a child answers with
/// its own, and the parent places it. From right to left, stacks, frames, overlays and the lines of a text
/// are mirrored; what is drawn on a canvas and how a symbol is turned are not, for they are places and
/// headings.
DisplayList layout(const View& view, Size space, const TextMeasurer& measurer,
    TextDirection direction = TextDirection::leftToRight);

} // namespace skyvane
