#pragma once

#include <QRegion>

namespace skyvane {

/// What of a widget of this size lies within its round corners.
QRegion roundShape(QSize size);

} // namespace skyvane
