#pragma once

#include "ui/tree/color.h"
#include "ui/tree/font.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace skyvane {

/// A place on a canvas: (0, 0) is its top left corner, (1, 1) its bottom right one.
struct UnitPoint {
    double x;
    double y;

    bool operator==(const UnitPoint&) const = default;
};

struct Stroke {
    Color color;
    double width; ///< Points.

    bool operator==(const Stroke&) const = default;
};

/// A diameter as a fraction of the canvas's width.
struct FractionOfWidth {
    double value;

    bool operator==(const FractionOfWidth&) const = default;
};

/// A diameter in points, whatever the canvas's size.
struct Points {
    double value;

    bool operator==(const Points&) const = default;
};

struct CanvasCircle {
    UnitPoint center;
    std::variant<FractionOfWidth, Points> diameter;
    std::variant<Color, Stroke> paint; ///< A Color fills it, a Stroke outlines it.

    bool operator==(const CanvasCircle&) const = default;
};

struct CanvasLine {
    UnitPoint from;
    UnitPoint to;
    Stroke stroke;

    bool operator==(const CanvasLine&) const = default;
};

struct CanvasSymbol {
    UnitPoint center;
    std::string name;
    Font font;
    Color color;
    double rotation = 0; ///< Degrees clockwise.
    std::optional<std::string> id{}; ///< The identity of the aircraft that it stands for.

    bool operator==(const CanvasSymbol&) const = default;
};

/// An item of a type that this version does not know: nothing is drawn for it.
struct UnknownCanvasItem {
    std::string type;

    bool operator==(const UnknownCanvasItem&) const = default;
};

using CanvasItem = std::variant<CanvasCircle, CanvasLine, CanvasSymbol, UnknownCanvasItem>;

} // namespace skyvane
