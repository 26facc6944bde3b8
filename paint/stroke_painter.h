#pragma once

#include "ui/tree/canvas.h"

#include <QRectF>

#include <functional>

class QPainter;

namespace skyvane {

/// Paints what `outline` draws with the stroke's pen. `bounds` hold its middle line.
void paintStroke(QPainter& painter, const Stroke& stroke, const QRectF& bounds,
    const std::function<void(QPainter&)>& outline);

} // namespace skyvane
