#pragma once

#include "platform/text/text_direction.h"
#include "ui/layout/geometry.h"
#include "ui/layout/widget_container.h"
#include "ui/tree/color.h"

#include <QRectF>
#include <QSize>

class QPainter;

/// How a widget looks from outside: a card with rounded corners.
namespace skyvane::WidgetCard {

inline constexpr double cornerRadius = 22; ///< Points.
inline constexpr Color emptyBackground{0.04, 0.05, 0.06}; ///< Of a card before its first content.

QSize sizeOf(WidgetFamily family);

void paintBackground(const Size& size, const Color& background, QPainter& painter);

/// Paints the keyboard's focus ring just inside the frame.
void paintFocus(const QRectF& frame, double radius, QPainter& painter);

/// The mark in a widget's corner: that at the top where lines end.
enum class Mark {
    none,
    stale, ///< It is no longer up to date: a dot.
    refreshing, ///< A refresh is still to come: a ring.
};

void paintMark(
    Mark mark, double width, QPainter& painter, TextDirection direction = TextDirection::leftToRight);

} // namespace skyvane::WidgetCard
