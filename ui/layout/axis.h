#pragma once

#include "ui/layout/geometry.h"
#include "ui/tree/alignment.h"

namespace skyvane {

/// The direction of a stack.
enum class Axis { horizontal, vertical };

constexpr double along(Axis axis, Size size)
{
    return axis == Axis::horizontal ? size.width : size.height;
}
constexpr double across(Axis axis, Size size)
{
    return axis == Axis::horizontal ? size.height : size.width;
}

constexpr Size sizeOn(Axis axis, double along, double across)
{
    return axis == Axis::horizontal ? Size{along, across} : Size{across, along};
}

/// The part of the free room that lies before the aligned child.
constexpr double leadingPart(HorizontalAlignment align)
{
    return align == HorizontalAlignment::leading ? 0 : align == HorizontalAlignment::center ? 0.5 : 1;
}
constexpr double leadingPart(VerticalAlignment align)
{
    return align == VerticalAlignment::top ? 0 : align == VerticalAlignment::center ? 0.5 : 1;
}

/// Where a child of this size stands inside the frame.
constexpr Rect aligned(Size child, Alignment align, const Rect& frame)
{
    return {
        .x = frame.x + leadingPart(align.horizontal) * (frame.width - child.width),
        .y = frame.y + leadingPart(align.vertical) * (frame.height - child.height),
        .width = child.width,
        .height = child.height,
    };
}

} // namespace skyvane
