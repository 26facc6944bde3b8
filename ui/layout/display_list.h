#pragma once

#include "platform/net/url.h"
#include "ui/layout/geometry.h"
#include "ui/layout/text_measurer.h"
#include "ui/tree/canvas.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace skyvane {

/// One line of text, ready to paint: wrapped, shrunk and truncated.
struct TextLine {
    Point origin; ///< Where its baseline begins.
    double width; ///< As measured.
    std::string string;
    FontFace face;
    double tracking;
    Color color;

    bool operator==(const TextLine&) const = default;
};

struct Pictogram {
    Point center;
    double side; ///< Of the square that holds it unrotated.
    std::string name;
    double rotation; ///< Degrees clockwise.
    Color color;
    std::optional<std::string> id{}; ///< The identity of the aircraft that it stands for.

    bool operator==(const Pictogram&) const = default;
};

struct Ellipse {
    Point center;
    double diameter;
    std::variant<Color, Stroke> paint;

    bool operator==(const Ellipse&) const = default;
};

struct Segment {
    Point from;
    Point to;
    Stroke stroke;

    bool operator==(const Segment&) const = default;
};

using DisplayItem = std::variant<TextLine, Pictogram, Ellipse, Segment>;

/// Where a tap opens a link.
struct LinkArea {
    Rect frame;
    URL url;

    bool operator==(const LinkArea&) const = default;
};

/// A laid-out view, in points from the top left corner of its space, items in painting order.
struct DisplayList {
    Size size; ///< What the view was offered.
    std::vector<DisplayItem> items{};
    std::vector<LinkArea> links{};

    bool operator==(const DisplayList&) const = default;
};

} // namespace skyvane
