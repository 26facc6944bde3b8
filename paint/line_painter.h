#pragma once

#include "ui/tree/canvas.h"

class QPainter;
class QPointF;

namespace skyvane {

/// Paints a straight line with flat ends; one along an axis on whole pixels, at least one wide.
void paintLine(QPainter& painter, const Stroke& stroke, QPointF from, QPointF to);

} // namespace skyvane
