#pragma once

#include "platform/net/url.h"
#include "ui/tree/alignment.h"
#include "ui/tree/canvas.h"
#include "ui/tree/color.h"
#include "ui/tree/font.h"
#include "ui/tree/view_list.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace skyvane {

struct Text {
    std::string string;
    Font font;
    Color color;
    double tracking = 0; ///< Points between characters.
    std::optional<int> lineLimit{};
    double minimumScale = 1; ///< How far it shrinks before it truncates, 0 to 1.
    HorizontalAlignment align = HorizontalAlignment::leading; ///< Of the lines of a wrapped text.

    bool operator==(const Text&) const = default;
};

/// A pictogram: "airplane" (nose to the right at rotation 0), "airplane.departure" or "house".
struct Symbol {
    std::string name;
    Font font;
    Color color;
    double rotation = 0; ///< Degrees clockwise; changes no layout.

    bool operator==(const Symbol&) const = default;
};

/// Children side by side.
struct HStack {
    double spacing = 0; ///< Points.
    VerticalAlignment align = VerticalAlignment::center;
    ViewList children{};

    View operator()(class Children children) &&;
    bool operator==(const HStack&) const = default;
};

/// Children one below the other.
struct VStack {
    double spacing = 0; ///< Points.
    HorizontalAlignment align = HorizontalAlignment::center;
    ViewList children{};

    View operator()(class Children children) &&;
    bool operator==(const VStack&) const = default;
};

/// Takes what is left along the stack that holds it.
struct Spacer {
    double minLength = 0; ///< Points.

    bool operator==(const Spacer&) const = default;
};

/// Grows to the offered size up to the maximum, which may be infinite, and aligns its child inside.
struct Frame {
    std::optional<double> maxWidth{};
    std::optional<double> maxHeight{};
    Alignment align = Alignment::center;
    ViewList child{}; ///< Exactly one.

    View operator()(View content) &&;
    bool operator==(const Frame&) const = default;
};

/// Layers drawn over a child, which alone decides the size.
struct Overlay {
    struct Layer {
        Alignment align;
        ViewList child; ///< Exactly one.

        bool operator==(const Layer&) const = default;
    };

    ViewList child; ///< Exactly one.
    std::vector<Layer> layers;

    bool operator==(const Overlay&) const = default;
};

/// A drawing of a fixed width : height, as large as fits what is offered.
struct Canvas {
    double aspectRatio = 1;
    std::vector<CanvasItem> items{};

    bool operator==(const Canvas&) const = default;
};

/// A tap on its child opens `url`.
struct Link {
    URL url;
    ViewList child; ///< Exactly one.

    bool operator==(const Link&) const = default;
};

/// A node of a type that this version does not know: it takes no place and nothing is drawn for it.
struct UnknownView {
    std::string type;

    bool operator==(const UnknownView&) const = default;
};

/// What to show, not how many pixels: a plain value that can be compared, copied and sent to another process.
struct View {
    using Node
        = std::variant<Text, Symbol, HStack, VStack, Spacer, Frame, Overlay, Canvas, Link, UnknownView>;

    Node node;
    std::optional<std::string> id{}; ///< The identity of the aircraft of a list that it stands for.

    bool operator==(const View&) const = default;
};

} // namespace skyvane
