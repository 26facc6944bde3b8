#pragma once

#include <QBitmap>

namespace skyvane {

/// What of a widget of this size lies within its round corners.
QBitmap roundMask(QSize size);

} // namespace skyvane
