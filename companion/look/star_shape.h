#pragma once

#include <QPainterPath>

namespace skyvane {

/// A star of five points in a square of 16 by 16.
QPainterPath starShape();

} // namespace skyvane
