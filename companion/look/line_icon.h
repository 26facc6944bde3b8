#pragma once

#include <QIcon>

namespace skyvane {

enum class LineIcon { back, refresh, menu, search };

/// An icon of lines in the palette's text colour, sharp at every size.
QIcon lineIcon(LineIcon shape);

} // namespace skyvane
