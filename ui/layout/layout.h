#pragma once

#include "ui/layout/display_list.h"
#include "ui/tree/view.h"

namespace skyvane {

/// Lays the view out in the middle of a space of this size. A parent proposes a size, a child answers with
/// its own, and the parent places it.
DisplayList layout(const View& view, Size space, const TextMeasurer& measurer);

} // namespace skyvane
