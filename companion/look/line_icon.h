#pragma once

#include <QIcon>

namespace skyvane {

enum class LineIcon { back, refresh, menu, search, star, starOn };

/// An icon of lines in the palette's text colour, sharp at every size; `starOn` is filled.
QIcon lineIcon(LineIcon shape);

} // namespace skyvane
