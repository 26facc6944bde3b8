#include "ui/archive/archive.h"
#include "ui/archive/words.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace skyvane {

namespace {

using Json = nlohmann::ordered_json;

/// Members are added to it one by one: each of a braced list would be made as a list of two first.
Json ofType(std::string_view type)
{
    Json json = Json::object();
    json["type"] = type;
    return json;
}

/// Whole numbers without a fraction, which halves the size of an archive.
Json number(double value)
{
    constexpr double exact = 1e15;
    if (value == std::trunc(value) && std::abs(value) < exact)
        return static_cast<std::int64_t>(value);
    return value;
}

Json point(UnitPoint point)
{
    return {number(point.x), number(point.y)};
}

Json stroke(const Stroke& stroke)
{
    Json json = Json::object();
    json["color"] = toArchive(stroke.color);
    json["width"] = number(stroke.width);
    return json;
}

Json font(const Font& font)
{
    Json json = Json::object();
    if (font.size.style)
        json["style"] = Words::wordFor(Words::styles, *font.size.style);
    else
        json["size"] = number(font.size.points);
    if (font.weight != FontWeight::regular)
        json["weight"] = Words::wordFor(Words::weights, font.weight);
    if (font.design != FontDesign::standard)
        json["design"] = Words::wordFor(Words::designs, font.design);
    return json;
}

/// A maximum that may be "infinity".
Json extent(double value)
{
    return std::isinf(value) ? Json("infinity") : number(value);
}

Json list(const ViewList& views)
{
    Json json = Json::array();
    for (const View& view : views)
        json.push_back(toArchive(view));
    return json;
}

Json only(const ViewList& views)
{
    return toArchive(views[0]);
}

/// Adds what a symbol has as a view and on a canvas.
template <class Symbol>
void describe(Json& json, const Symbol& symbol)
{
    json["name"] = symbol.name;
    json["font"] = font(symbol.font);
    json["color"] = toArchive(symbol.color);
    if (symbol.rotation != 0)
        json["rotation"] = number(symbol.rotation);
}

struct ItemArchiver {
    Json operator()(const CanvasCircle& circle) const
    {
        Json json = ofType("circle");
        json["center"] = point(circle.center);
        if (const auto* fraction = std::get_if<FractionOfWidth>(&circle.diameter))
            json["diameter"] = number(fraction->value);
        else
            json["points"] = number(std::get<Points>(circle.diameter).value);
        if (const auto* fill = std::get_if<Color>(&circle.paint))
            json["fill"] = toArchive(*fill);
        else
            json["stroke"] = stroke(std::get<Stroke>(circle.paint));
        return json;
    }

    Json operator()(const CanvasLine& line) const
    {
        Json json = ofType("line");
        json["from"] = point(line.from);
        json["to"] = point(line.to);
        json["stroke"] = stroke(line.stroke);
        return json;
    }

    Json operator()(const CanvasSymbol& item) const
    {
        Json json = ofType("symbol");
        json["center"] = point(item.center);
        describe(json, item);
        if (item.id)
            json["id"] = *item.id;
        return json;
    }

    Json operator()(const UnknownCanvasItem& item) const { return ofType(item.type); }
};

struct NodeArchiver {
    Json operator()(const Text& text) const
    {
        Json json = ofType("text");
        json["text"] = text.string;
        json["font"] = font(text.font);
        json["color"] = toArchive(text.color);
        if (text.tracking != 0)
            json["tracking"] = number(text.tracking);
        if (text.lineLimit)
            json["lineLimit"] = *text.lineLimit;
        if (text.minimumScale != 1)
            json["minimumScale"] = number(text.minimumScale);
        if (text.align != HorizontalAlignment::leading)
            json["align"] = Words::wordFor(Words::horizontal, text.align);
        return json;
    }

    Json operator()(const Symbol& symbol) const
    {
        Json json = ofType("symbol");
        describe(json, symbol);
        return json;
    }

    Json operator()(const HStack& stack) const
    {
        return stackArchive("hstack", stack, Words::wordFor(Words::vertical, stack.align));
    }

    Json operator()(const VStack& stack) const
    {
        return stackArchive("vstack", stack, Words::wordFor(Words::horizontal, stack.align));
    }

    Json operator()(const Spacer& spacer) const
    {
        Json json = ofType("spacer");
        if (spacer.minLength != 0)
            json["minLength"] = number(spacer.minLength);
        return json;
    }

    Json operator()(const Frame& frame) const
    {
        Json json = ofType("frame");
        if (frame.maxWidth)
            json["maxWidth"] = extent(*frame.maxWidth);
        if (frame.maxHeight)
            json["maxHeight"] = extent(*frame.maxHeight);
        if (frame.align != Alignment::center)
            json["align"] = Words::wordFor(Words::alignments, frame.align);
        json["child"] = only(frame.child);
        return json;
    }

    Json operator()(const Overlay& overlay) const
    {
        Json json = ofType("overlay");
        json["child"] = only(overlay.child);
        Json& layers = json["layers"] = Json::array();
        for (const Overlay::Layer& layer : overlay.layers) {
            Json& archived = layers.emplace_back(Json::object());
            archived["align"] = Words::wordFor(Words::alignments, layer.align);
            archived["child"] = only(layer.child);
        }
        return json;
    }

    Json operator()(const Canvas& canvas) const
    {
        Json json = ofType("canvas");
        json["aspectRatio"] = number(canvas.aspectRatio);
        Json& items = json["items"] = Json::array();
        for (const CanvasItem& item : canvas.items)
            items.push_back(std::visit(ItemArchiver{}, item));
        return json;
    }

    Json operator()(const Link& link) const
    {
        Json json = ofType("link");
        json["url"] = link.url.text();
        json["child"] = only(link.child);
        return json;
    }

    Json operator()(const UnknownView& unknown) const { return ofType(unknown.type); }

private:
    template <class Stack>
    static Json stackArchive(const char* type, const Stack& stack, std::string_view align)
    {
        Json json = ofType(type);
        if (stack.spacing != 0)
            json["spacing"] = number(stack.spacing);
        if (align != "center")
            json["align"] = align;
        json["children"] = list(stack.children);
        return json;
    }
};

} // namespace

nlohmann::ordered_json toArchive(const Color& color)
{
    return {number(color.red), number(color.green), number(color.blue), number(color.opacity)};
}

nlohmann::ordered_json toArchive(const View& view)
{
    Json json = std::visit(NodeArchiver{}, view.node);
    if (view.id)
        json["id"] = *view.id;
    return json;
}

} // namespace skyvane
