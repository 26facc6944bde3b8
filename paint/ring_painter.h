#pragma once

#include "ui/tree/canvas.h"

class QPainter;
class QPointF;

namespace skyvane {

/// Paints a circle's line, as wide outside the circle as inside.
void paintRing(QPainter& painter, const Stroke& stroke, QPointF center, double radius);

} // namespace skyvane
