#include "ui/layout/dump.h"

#include "platform/text/format.h"

#include <cmath>

namespace skyvane {

namespace {

std::string number(double value)
{
    const double rounded = std::round(value * 10) / 10;
    return Format::fixed(rounded == 0 ? 0 : rounded, 1);
}

std::string point(Point place)
{
    return number(place.x) + "," + number(place.y);
}

std::string color(const Color& value)
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

std::string stroke(const Stroke& value)
{
    return "stroke " + color(value.color) + " " + number(value.width);
}

std::string face(const FontFace& value)
{
    std::string text = number(value.size);
    if (value.weight != FontWeight::regular)
        text += value.weight == FontWeight::bold ? " bold" : " semibold";
    if (value.design == FontDesign::monospaced)
        text += " monospaced";
    return text;
}

std::string line(const TextLine& item)
{
    const std::string tracking = item.tracking != 0 ? " tracking " + number(item.tracking) : "";
    return "text \"" + item.string + "\" at " + point(item.origin) + " width " + number(item.width) + " face "
        + face(item.face) + tracking + " " + color(item.color);
}

std::string line(const Pictogram& item)
{
    const std::string rotation = item.rotation != 0 ? " rotated " + number(item.rotation) : "";
    return "pictogram " + item.name + " at " + point(item.center) + " side " + number(item.side) + rotation
        + " " + color(item.color);
}

std::string line(const Ellipse& item)
{
    const auto* fill = std::get_if<Color>(&item.paint);
    return "ellipse at " + point(item.center) + " diameter " + number(item.diameter) + " "
        + (fill ? "fill " + color(*fill) : stroke(std::get<Stroke>(item.paint)));
}

std::string line(const Segment& item)
{
    return "segment " + point(item.from) + " to " + point(item.to) + " " + stroke(item.stroke);
}

} // namespace

std::string dump(const DisplayList& list)
{
    std::string text = number(list.size.width) + " x " + number(list.size.height) + "\n";
    for (const DisplayItem& item : list.items)
        text += std::visit([](const auto& drawn) { return line(drawn); }, item) + "\n";
    for (const LinkArea& link : list.links)
        text += "link " + link.url.text() + " at " + point({link.frame.x, link.frame.y}) + " size "
            + number(link.frame.width) + " x " + number(link.frame.height) + "\n";
    return text;
}

} // namespace skyvane
