#pragma once

#include "core/model/aircraft.h"

#include <QColor>
#include <QPolygonF>
#include <QStringList>

class QPainter;

/// What the companion paints over the scope that the widgets show, too.
namespace skyvane::ScopeLayer {

/// From where the aircraft has been seen to where it is, the oldest place first.
void paintTrail(QPainter& painter, const QPolygonF& places, QColor color);

/// A triangle around an emergency, a diamond around a military aircraft: told apart by shape, not by colour
/// alone. Nothing around any other.
void paintMark(QPainter& painter, const Aircraft& aircraft, const QPointF& blip, const QColor& color);

/// A ring around the aircraft that is selected.
void paintSelection(QPainter& painter, const QPointF& blip, const QColor& color);

/// A few words on the scope.
struct Label {
    QStringList lines; ///< The first one strong.
    QColor text;
    QColor background;
};

/// Beside the blip, where it stays within the frame.
void paintLabel(QPainter& painter, const Label& label, const QPointF& blip, const QRectF& frame);

} // namespace skyvane::ScopeLayer
