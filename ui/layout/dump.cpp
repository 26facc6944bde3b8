#include "ui/layout/dump.h"

#include "platform/text/format.h"

#include <cmath>

namespace skyvane {

namespace {

std::string decimal(double value)
{
    const double rounded = std::round(value * 10) / 10;
    return Format::fixed(rounded == 0 ? 0 : rounded, 1);
}

std::string place(Point point)
{
    return decimal(point.x) + "," + decimal(point.y);
}

std::string hex(const Color& value)
{
    std::string text = "#";
    for (const double channel : {value.red, value.green, value.blue, value.opacity}) {
        constexpr const char* digits = "0123456789abcdef";
        const auto byte = static_cast<unsigned>(std::lround(std::fmin(std::fmax(channel, 0), 1) * 255));
        text += digits[byte / 16];
        text += digits[byte % 16];
    }
    return text;
}

std::string strokeText(const Stroke& value)
{
    return "stroke " + hex(value.color) + " " + decimal(value.width);
}

std::string face(const FontFace& value)
{
    std::string text = decimal(value.size);
    if (value.weight != FontWeight::regular)
        text += value.weight == FontWeight::bold ? " bold" : " semibold";
    if (value.design == FontDesign::monospaced)
        text += " monospaced";
    return text;
}

std::string line(const TextLine& item)
{
    const std::string tracking = item.tracking != 0 ? " tracking " + decimal(item.tracking) : "";
    return "text \"" + item.string + "\" at " + place(item.origin) + " width " + decimal(item.width)
        + " face " + face(item.face) + tracking + " " + hex(item.color);
}

std::string line(const Pictogram& item)
{
    const std::string rotation = item.rotation != 0 ? " rotated " + decimal(item.rotation) : "";
    return "pictogram " + item.name + " at " + place(item.center) + " side " + decimal(item.side) + rotation
        + " " + hex(item.color);
}

std::string line(const Ellipse& item)
{
    const auto* fill = std::get_if<Color>(&item.paint);
    return "ellipse at " + place(item.center) + " diameter " + decimal(item.diameter) + " "
        + (fill ? "fill " + hex(*fill) : strokeText(std::get<Stroke>(item.paint)));
}

std::string line(const Segment& item)
{
    return "segment " + place(item.from) + " to " + place(item.to) + " " + strokeText(item.stroke);
}

} // namespace

std::string dump(const DisplayList& list)
{
    std::string text = decimal(list.size.width) + " x " + decimal(list.size.height) + "\n";
    for (const DisplayItem& item : list.items)
        text += std::visit([](const auto& drawn) { return line(drawn); }, item) + "\n";
    for (const LinkArea& link : list.links)
        text += "link " + link.url.text() + " at " + place({link.frame.x, link.frame.y}) + " size "
            + decimal(link.frame.width) + " x " + decimal(link.frame.height) + "\n";
    return text;
}

} // namespace skyvane
