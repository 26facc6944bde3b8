#include "ui/archive/node_reader.h"

#include <limits>

namespace skyvane {

namespace {

constexpr int deepest = 64;

/// An array of exactly this many numbers.
template <std::size_t count>
std::array<double, count> numbers(JSON::Value value)
{
    std::array<double, count> list{};
    std::size_t index = 0;
    for (const JSON::Value element : JSON::array(value)) {
        if (index < count)
            list.at(index) = JSON::number(element);
        ++index;
    }
    if (index != count)
        throw JSON::DecodingError{
            "expected " + std::to_string(count) + " numbers, found " + std::to_string(index)};
    return list;
}

Stroke decodeStroke(JSON::Value value)
{
    const NodeReader reader{value};
    return {.color = reader.color("color"), .width = reader.number("width")};
}

FontSize decodeFontSize(const NodeReader& reader)
{
    if (const auto style = reader.word("style", Words::styles))
        return *style;
    return reader.positiveNumber("size");
}

Font decodeFont(JSON::Value value)
{
    const NodeReader reader{value};
    return {
        .size = decodeFontSize(reader),
        .weight = reader.word("weight", Words::weights).value_or(FontWeight::regular),
        .design = reader.word("design", Words::designs).value_or(FontDesign::standard),
    };
}

} // namespace

NodeReader::NodeReader(JSON::Value value, int depth) : m_object(value), m_depth(depth)
{
    if (depth > deepest)
        throw JSON::DecodingError{"nested deeper than " + std::to_string(deepest) + " nodes"};
}

Color NodeReader::decodeColor(JSON::Value value)
{
    const auto [red, green, blue, opacity] = numbers<4>(value);
    return {red, green, blue, opacity};
}

double NodeReader::number(std::string_view key) const
{
    return m_object.required(key, JSON::number);
}

double NodeReader::positiveNumber(std::string_view key) const
{
    return m_object.required(key, [](JSON::Value value) {
        const double number = JSON::number(value);
        if (!(number > 0))
            throw JSON::DecodingError{"expected a number above 0"};
        return number;
    });
}

std::optional<double> NodeReader::optionalNumber(std::string_view key) const
{
    return m_object.optional(key, JSON::number);
}

std::optional<int> NodeReader::optionalCount(std::string_view key) const
{
    return m_object.optional(key, [](JSON::Value value) {
        const std::int64_t count = JSON::integer(value);
        if (count < 1 || count > std::numeric_limits<int>::max())
            throw JSON::DecodingError{"expected a whole number above 0"};
        return static_cast<int>(count);
    });
}

std::optional<double> NodeReader::optionalExtent(std::string_view key) const
{
    return m_object.optional(key, [](JSON::Value value) {
        if (JSON::isString(value) && JSON::string(value) == "infinity")
            return std::numeric_limits<double>::infinity();
        return JSON::number(value);
    });
}

std::string NodeReader::string(std::string_view key) const
{
    return m_object.required(key, JSON::text);
}

std::optional<std::string> NodeReader::optionalString(std::string_view key) const
{
    return m_object.optional(key, JSON::text);
}

URL NodeReader::url(std::string_view key) const
{
    return m_object.required(key, [](JSON::Value value) {
        if (auto url = URL::parse(JSON::string(value)))
            return *std::move(url);
        throw JSON::DecodingError{"expected a URL"};
    });
}

Color NodeReader::color(std::string_view key) const
{
    return m_object.required(key, decodeColor);
}

Font NodeReader::font(std::string_view key) const
{
    return m_object.required(key, decodeFont);
}

Stroke NodeReader::stroke(std::string_view key) const
{
    return m_object.required(key, decodeStroke);
}

std::optional<Stroke> NodeReader::optionalStroke(std::string_view key) const
{
    return m_object.optional(key, decodeStroke);
}

UnitPoint NodeReader::point(std::string_view key) const
{
    return m_object.required(key, [](JSON::Value value) {
        const auto [x, y] = numbers<2>(value);
        return UnitPoint{.x = x, .y = y};
    });
}

void NodeReader::forEach(std::string_view key, const std::function<void(const NodeReader&)>& visit) const
{
    m_object.required(key, [&](JSON::Value value) {
        JSON::forEach(value, [&](JSON::Value element) { visit(NodeReader{element, m_depth + 1}); });
    });
}

} // namespace skyvane
