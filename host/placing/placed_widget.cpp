#include "host/placing/placed_widget.h"

#include "platform/json/object.h"
#include "protocol/record_codec.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <nlohmann/json.hpp>
#include <set>
#include <utility>

namespace skyvane {

namespace {

constexpr std::int64_t version = 1;

constexpr std::array<std::pair<ScreenCorner, std::string_view>, 4> corners{{
    {ScreenCorner::topLeft, "topLeft"},
    {ScreenCorner::topRight, "topRight"},
    {ScreenCorner::bottomLeft, "bottomLeft"},
    {ScreenCorner::bottomRight, "bottomRight"},
}};

nlohmann::ordered_json json(const PlacedWidget& widget)
{
    const auto corner = std::find_if(corners.begin(), corners.end(),
        [&](const auto& known) { return known.first == widget.placement.corner; });
    nlohmann::ordered_json json{{"id", widget.id}};
    json.update(Protocol::write(widget.target));
    json["screen"] = widget.placement.screen;
    json["identity"] = widget.placement.identity;
    json["corner"] = corner->second;
    json["x"] = widget.placement.inset.x();
    json["y"] = widget.placement.inset.y();
    json["areaWidth"] = widget.placement.area.width();
    json["areaHeight"] = widget.placement.area.height();
    return json;
}

int number(JSON::Value value)
{
    constexpr std::int64_t farthest = 1'000'000;
    const std::int64_t number = JSON::integer(value);
    if (std::abs(number) > farthest)
        throw JSON::DecodingError{"is out of range"};
    return static_cast<int>(number);
}

ScreenCorner corner(JSON::Value value)
{
    const std::string_view name = JSON::string(value);
    const auto corner = std::find_if(
        corners.begin(), corners.end(), [&](const auto& known) { return known.second == name; });
    if (corner == corners.end())
        throw JSON::DecodingError::unknownWord(name);
    return corner->first;
}

/// Empty unless it has both lengths.
QSize area(const JSON::Object& members)
{
    const auto width = members.optional("areaWidth", number);
    const auto height = members.optional("areaHeight", number);
    return width && height ? QSize{*width, *height} : QSize{};
}

PlacedWidget widget(JSON::Value value)
{
    const JSON::Object members{value};
    return {
        .id = members.required("id", number),
        .target = Protocol::read<WidgetTarget>(value),
        .placement = {
            .screen = members.required("screen", JSON::text),
            .corner = members.required("corner", corner),
            .inset = {members.required("x", number), members.required("y", number)},
            .identity = members.optional("identity", JSON::text).value_or(std::string{}),
            .area = area(members),
        },
    };
}

} // namespace

std::string Arrangement::encoded() const
{
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const PlacedWidget& placed : widgets)
        list.push_back(json(placed));
    const nlohmann::ordered_json whole{{"version", version}, {"locked", isLocked}, {"widgets", list}};
    // A screen's name is whatever its maker wrote.
    return whole.dump(2, ' ', /*ensure_ascii=*/false, nlohmann::ordered_json::error_handler_t::replace)
        + "\n";
}

std::optional<Arrangement> Arrangement::decoded(std::string_view text)
{
    try {
        const JSON::Document document{text};
        const JSON::Object members{document.root()};
        if (members.required("version", JSON::integer) != version)
            return std::nullopt;
        Arrangement arrangement{
            .widgets = members.required("widgets", JSON::listOf(widget)),
            .isLocked = members.optional("locked", JSON::boolean).value_or(false),
        };
        std::set<int> ids;
        for (const PlacedWidget& placed : arrangement.widgets) {
            if (placed.id < 1 || !ids.insert(placed.id).second)
                return std::nullopt;
        }
        return arrangement;
    } catch (const JSON::DecodingError&) {
        return std::nullopt;
    }
}

} // namespace skyvane
