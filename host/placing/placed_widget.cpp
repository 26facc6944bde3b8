#include "host/placing/placed_widget.h"

#include "platform/json/value.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <nlohmann/json.hpp>
#include <set>
#include <utility>

namespace skyvane::PlacedWidgets {

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
    return {
        {"id", widget.id},
        {"kind", widget.target.kind},
        {"family", WidgetContainer::name(widget.target.family)},
        {"screen", widget.placement.screen},
        {"corner", corner->second},
        {"x", widget.placement.inset.x()},
        {"y", widget.placement.inset.y()},
    };
}

JSON::Value member(JSON::Value object, std::string_view key)
{
    JSON::Value value;
    if (JSON::object(object).at_key(key).get(value) != simdjson::SUCCESS)
        throw JSON::DecodingError{"is missing"}.inMember(key);
    return value;
}

std::string text(JSON::Value object, std::string_view key)
{
    return std::string{JSON::string(member(object, key))};
}

int number(JSON::Value object, std::string_view key)
{
    constexpr std::int64_t farthest = 1'000'000;
    const std::int64_t value = JSON::integer(member(object, key));
    if (std::abs(value) > farthest)
        throw JSON::DecodingError{"is out of range"}.inMember(key);
    return static_cast<int>(value);
}

PlacedWidget widget(JSON::Value value)
{
    const auto family = WidgetContainer::named(text(value, "family"));
    const std::string cornerName = text(value, "corner");
    const auto corner = std::find_if(
        corners.begin(), corners.end(), [&](const auto& known) { return known.second == cornerName; });
    if (!family || corner == corners.end())
        throw JSON::DecodingError{"is of an unknown family or corner"};
    return {
        .id = number(value, "id"),
        .target = {.kind = text(value, "kind"), .family = *family},
        .placement = {
            .screen = text(value, "screen"),
            .corner = corner->first,
            .inset = {number(value, "x"), number(value, "y")},
        },
    };
}

} // namespace

std::string encoded(const std::vector<PlacedWidget>& widgets)
{
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const PlacedWidget& widget : widgets)
        list.push_back(json(widget));
    const nlohmann::ordered_json whole{{"version", version}, {"widgets", list}};
    // A screen's name is whatever its maker wrote.
    return whole.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

std::optional<std::vector<PlacedWidget>> decoded(std::string_view bytes)
{
    try {
        const JSON::Document document{bytes};
        if (JSON::integer(member(document.root(), "version")) != version)
            return std::nullopt;
        std::vector<PlacedWidget> widgets;
        std::set<int> ids;
        for (const JSON::Value value : JSON::array(member(document.root(), "widgets"))) {
            widgets.push_back(widget(value));
            if (widgets.back().id < 1 || !ids.insert(widgets.back().id).second)
                return std::nullopt;
        }
        return widgets;
    } catch (const JSON::DecodingError&) {
        return std::nullopt;
    }
}

} // namespace skyvane::PlacedWidgets
