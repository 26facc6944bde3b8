#include "ui/tree/build.h"

#include "platform/text/printable.h"

#include <utility>

namespace skyvane {

Children::Children(std::initializer_list<Element> elements)
{
    for (const Element& element : elements)
        views.insert(views.end(), element.views.begin(), element.views.end());
}

View HStack::operator()(Children content) &&
{
    children = std::move(content.views);
    return {.node = std::move(*this)};
}

View VStack::operator()(Children content) &&
{
    children = std::move(content.views);
    return {.node = std::move(*this)};
}

View Frame::operator()(View content) &&
{
    child = {std::move(content)};
    return {.node = std::move(*this)};
}

std::string shownText(std::string string)
{
    return Unicode::atMost(Unicode::printable(Unicode::atMost(std::move(string))));
}

Styled<Text> text(std::string string)
{
    return {.node
        = {.string = shownText(std::move(string)), .font = {.size = TextStyle::caption}, .color = {0, 0, 0}}};
}

Styled<Symbol> symbol(std::string name)
{
    return {.node = {.name = std::move(name), .font = {.size = TextStyle::caption}, .color = {0, 0, 0}}};
}

View spacer(double minLength)
{
    return {.node = Spacer{.minLength = minLength}};
}

View canvas(double aspectRatio, std::vector<CanvasItem> items)
{
    return {.node = Canvas{.aspectRatio = aspectRatio, .items = std::move(items)}};
}

View link(URL url, View child)
{
    return {.node = Link{.url = std::move(url), .child = {std::move(child)}}};
}

std::string nodeID(std::string id)
{
    constexpr std::size_t most = 64; // Characters; a canvas may hold dozens of identities.
    return Unicode::atMost(std::move(id), most);
}

View identified(std::string id, View view)
{
    view.id = nodeID(std::move(id));
    return view;
}

std::optional<Overlay::Layer> layer(Alignment align, std::optional<View> child)
{
    if (!child)
        return std::nullopt;
    return Overlay::Layer{.align = align, .child = {*std::move(child)}};
}

View overlay(View child, std::initializer_list<std::optional<Overlay::Layer>> layers)
{
    Overlay overlay{.child = {std::move(child)}, .layers = {}};
    for (const auto& candidate : layers) {
        if (candidate)
            overlay.layers.push_back(*candidate);
    }
    return {.node = std::move(overlay)};
}

} // namespace skyvane
