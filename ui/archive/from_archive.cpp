#include "ui/archive/archive.h"
#include "ui/archive/node_reader.h"
#include "ui/tree/build.h"

#include <utility>

namespace skyvane {

namespace {

View view(const NodeReader& node);

ViewList views(const NodeReader& node, std::string_view key)
{
    std::vector<View> list;
    node.forEach(key, [&](const NodeReader& child) { list.push_back(view(child)); });
    return list;
}

ViewList child(const NodeReader& node)
{
    return {node.child("child", view)};
}

CanvasItem circle(const NodeReader& item)
{
    const auto diameter = item.optionalNumber("diameter");
    const auto stroke = item.optionalStroke("stroke");
    CanvasCircle circle{
        .center = item.point("center"), .diameter = FractionOfWidth{diameter.value_or(0)}, .paint = {}};
    if (!diameter)
        circle.diameter = Points{item.number("points")};
    if (stroke)
        circle.paint = *stroke;
    else
        circle.paint = item.color("fill");
    return circle;
}

CanvasItem canvasItem(const NodeReader& item)
{
    const std::string type = item.string("type");
    if (type == "circle")
        return circle(item);
    if (type == "line")
        return CanvasLine{
            .from = item.point("from"), .to = item.point("to"), .stroke = item.stroke("stroke")};
    if (type == "symbol") {
        return CanvasSymbol{
            .center = item.point("center"),
            .name = item.string("name"),
            .font = item.font("font"),
            .color = item.color("color"),
            .rotation = item.optionalNumber("rotation").value_or(0),
            .id = item.optionalString("id"),
        };
    }
    return UnknownCanvasItem{.type = type};
}

Text text(const NodeReader& node)
{
    return {
        .string = shownText(node.string("text")),
        .font = node.font("font"),
        .color = node.color("color"),
        .tracking = node.optionalNumber("tracking").value_or(0),
        .lineLimit = node.optionalCount("lineLimit"),
        .minimumScale = node.optionalNumber("minimumScale").value_or(1),
        .align = node.word("align", Words::horizontal).value_or(HorizontalAlignment::leading),
    };
}

Symbol symbol(const NodeReader& node)
{
    return {
        .name = node.string("name"),
        .font = node.font("font"),
        .color = node.color("color"),
        .rotation = node.optionalNumber("rotation").value_or(0),
    };
}

HStack hstack(const NodeReader& node)
{
    return {
        .spacing = node.optionalNumber("spacing").value_or(0),
        .align = node.word("align", Words::vertical).value_or(VerticalAlignment::center),
        .children = views(node, "children"),
    };
}

VStack vstack(const NodeReader& node)
{
    return {
        .spacing = node.optionalNumber("spacing").value_or(0),
        .align = node.word("align", Words::horizontal).value_or(HorizontalAlignment::center),
        .children = views(node, "children"),
    };
}

Frame frame(const NodeReader& node)
{
    return {
        .maxWidth = node.optionalExtent("maxWidth"),
        .maxHeight = node.optionalExtent("maxHeight"),
        .align = node.word("align", Words::alignments).value_or(Alignment::center),
        .child = child(node),
    };
}

Overlay overlay(const NodeReader& node)
{
    Overlay overlay{.child = child(node), .layers = {}};
    node.forEach("layers", [&](const NodeReader& layer) {
        overlay.layers.push_back({
            .align = layer.word("align", Words::alignments).value_or(Alignment::center),
            .child = child(layer),
        });
    });
    return overlay;
}

Canvas canvas(const NodeReader& node)
{
    Canvas canvas{.aspectRatio = node.positiveNumber("aspectRatio")};
    node.forEach("items", [&](const NodeReader& item) { canvas.items.push_back(canvasItem(item)); });
    return canvas;
}

View::Node node(const NodeReader& node)
{
    const std::string type = node.string("type");
    if (type == "text")
        return text(node);
    if (type == "symbol")
        return symbol(node);
    if (type == "hstack")
        return hstack(node);
    if (type == "vstack")
        return vstack(node);
    if (type == "spacer")
        return Spacer{.minLength = node.optionalNumber("minLength").value_or(0)};
    if (type == "frame")
        return frame(node);
    if (type == "overlay")
        return overlay(node);
    if (type == "canvas")
        return canvas(node);
    if (type == "link")
        return Link{.url = node.url("url"), .child = child(node)};
    return UnknownView{.type = type};
}

View view(const NodeReader& reader)
{
    return {.node = node(reader), .id = reader.optionalString("id")};
}

} // namespace

View fromArchive(JSON::Value archive)
{
    return view(NodeReader{archive});
}

Color colorFromArchive(JSON::Value archive)
{
    return NodeReader::decodeColor(archive);
}

} // namespace skyvane
