#pragma once

#include "companion/sky/sky_cells.h"

class QFont;

namespace skyvane {

/// As wide as what usually stands in the column of the list, its head and the room at both ends included, in
/// the user's language.
int usualWidth(SkyColumn column, const QFont& font);

} // namespace skyvane
