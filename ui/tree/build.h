#pragma once

#include "ui/tree/view.h"

#include <concepts>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The words that views are written in; a body reads as the widget looks, top to bottom.
namespace skyvane {

/// A text or a symbol on its way to becoming a view. Every modifier moves.
template <class Node>
struct Styled {
    Node node;

    Styled&& font(Font value) &&
    {
        node.font = value;
        return std::move(*this);
    }
    Styled&& foreground(Color value) &&
    {
        node.color = value;
        return std::move(*this);
    }
    Styled&& tracking(double points) && requires std::same_as<Node, Text>
    {
        node.tracking = points;
        return std::move(*this);
    }
    Styled&& lineLimit(int lines) && requires std::same_as<Node, Text>
    {
        node.lineLimit = lines;
        return std::move(*this);
    }
    Styled&& minimumScale(double scale) && requires std::same_as<Node, Text>
    {
        node.minimumScale = scale;
        return std::move(*this);
    }
    Styled&& align(HorizontalAlignment value) && requires std::same_as<Node, Text>
    {
        node.align = value;
        return std::move(*this);
    }
    Styled&& rotated(double degrees) && requires std::same_as<Node, Symbol>
    {
        node.rotation = degrees;
        return std::move(*this);
    }

    operator View() && { return {.node = std::move(node)}; }
};

/// What stands between a stack's braces: a view, an optional one, or several.
class Children {
public:
    struct Element {
        Element(View view) : views{std::move(view)} { }
        template <class Node>
        Element(Styled<Node> styled) : views{static_cast<View>(std::move(styled))}
        {
        }
        Element(std::optional<View> view)
        {
            if (view)
                views.push_back(*std::move(view));
        }
        Element(std::vector<View> several) : views(std::move(several)) { }

        std::vector<View> views;
    };

    Children(std::initializer_list<Element> elements);

    std::vector<View> views;
};

/// So much of a text as anybody is shown, without what steers a terminal or the text around it: what every
/// node of a tree holds, be it made here or read from a stranger's archive.
std::string shownText(std::string string);

/// Black until `foreground` says otherwise, at the caption size until `font` does. Holds `shownText`.
Styled<Text> text(std::string string);
Styled<Symbol> symbol(std::string name);

View spacer(double minLength = 0);
View canvas(double aspectRatio, std::vector<CanvasItem> items);
View link(URL url, View child);

/// An aircraft's identity as a node carries it: an absurdly long one is cut.
std::string nodeID(std::string id);

/// The same view, standing for one aircraft of a list.
View identified(std::string id, View view);

/// A layer of an overlay, or none without a view.
std::optional<Overlay::Layer> layer(Alignment align, std::optional<View> child);
View overlay(View child, std::initializer_list<std::optional<Overlay::Layer>> layers);

/// The view that `make` makes of the value, when there is one.
template <class Value, class Make>
std::optional<View> ifPresent(const std::optional<Value>& value, Make&& make)
{
    if (!value)
        return std::nullopt;
    return static_cast<View>(std::invoke(std::forward<Make>(make), *value));
}

/// The view that `make` makes, when the condition holds.
template <class Make>
std::optional<View> when(bool condition, Make&& make)
{
    if (!condition)
        return std::nullopt;
    return static_cast<View>(std::invoke(std::forward<Make>(make)));
}

} // namespace skyvane
