#pragma once

#include <QIcon>

namespace skyvane {

enum class LineIcon { back, refresh, menu, search };

/// Drawn in the text colour of the moment, sharp at every size.
QIcon lineIcon(LineIcon shape);

} // namespace skyvane
