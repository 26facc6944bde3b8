#include "desk/spoken_parts.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace skyvane {

namespace {

bool contains(const Rect& frame, Point place)
{
    return place.x >= frame.x && place.x <= frame.x + frame.width && place.y >= frame.y
        && place.y <= frame.y + frame.height;
}

/// Of several above each other the one on top, as for a tap.
SpokenPart* linkAt(std::vector<SpokenPart>& links, const TextLine& line)
{
    const Point middle{line.origin.x + line.width / 2, line.origin.y - line.face.size / 2};
    const auto found = std::find_if(
        links.rbegin(), links.rend(), [&](const SpokenPart& link) { return contains(link.frame, middle); });
    return found == links.rend() ? nullptr : &*found;
}

void append(std::string& text, const std::string& more)
{
    text += text.empty() || more.empty() ? more : ", " + more;
}

/// Close enough to the ink for a reader's highlight.
Rect frameOf(const TextLine& line)
{
    constexpr double descent = 0.25;
    return {
        .x = line.origin.x,
        .y = line.origin.y - line.face.size,
        .width = line.width,
        .height = line.face.size * (1 + descent),
    };
}

Rect united(const Rect& one, const Rect& other)
{
    const double x = std::min(one.x, other.x);
    const double y = std::min(one.y, other.y);
    return {
        .x = x,
        .y = y,
        .width = std::max(one.x + one.width, other.x + other.width) - x,
        .height = std::max(one.y + one.height, other.y + other.height) - y,
    };
}

struct Row {
    double baseline;
    std::vector<const TextLine*> lines{};
};

Row& rowOf(std::vector<Row>& rows, double baseline)
{
    const auto place = std::find_if(
        rows.begin(), rows.end(), [&](const Row& row) { return std::abs(row.baseline - baseline) < 1; });
    return place != rows.end() ? *place : rows.emplace_back(Row{.baseline = baseline});
}

/// Grows in reading order.
double beginning(double left, double width, TextDirection direction)
{
    return direction == TextDirection::rightToLeft ? -(left + width) : left;
}

SpokenPart spokenRow(Row row, TextDirection direction)
{
    const auto start
        = [&](const TextLine* line) { return beginning(line->origin.x, line->width, direction); };
    std::stable_sort(row.lines.begin(), row.lines.end(),
        [&](const TextLine* a, const TextLine* b) { return start(a) < start(b); });
    SpokenPart part{.text = {}, .frame = frameOf(*row.lines.front())};
    for (const TextLine* line : row.lines) {
        append(part.text, line->string);
        part.frame = united(part.frame, frameOf(*line));
    }
    return part;
}

} // namespace

std::vector<SpokenPart> spokenParts(const DisplayList& list, TextDirection direction)
{
    std::vector<SpokenPart> parts;
    for (const LinkArea& link : list.links)
        parts.push_back({.text = {}, .frame = link.frame, .link = parts.size()});
    std::vector<Row> rows;
    for (const DisplayItem& item : list.items) {
        const auto* line = std::get_if<TextLine>(&item);
        if (line == nullptr)
            continue;
        if (SpokenPart* link = linkAt(parts, *line))
            append(link->text, line->string);
        else
            rowOf(rows, line->origin.y).lines.push_back(line);
    }
    for (SpokenPart& part : parts) {
        if (part.text.empty())
            part.text = list.links[*part.link].url.text();
    }
    for (const Row& row : rows)
        parts.push_back(spokenRow(row, direction));
    std::stable_sort(parts.begin(), parts.end(), [&](const SpokenPart& a, const SpokenPart& b) {
        return std::pair{a.frame.y, beginning(a.frame.x, a.frame.width, direction)}
        < std::pair{b.frame.y, beginning(b.frame.x, b.frame.width, direction)};
    });
    return parts;
}

} // namespace skyvane
