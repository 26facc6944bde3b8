#include "protocol/codec.h"

#include "ui/archive/archive.h"
#include "ui/layout/widget_container.h"

#include <cmath>
#include <string_view>

namespace skyvane::Protocol {

namespace {

constexpr std::string_view reloadPolicy = "policy";
constexpr std::string_view afterDate = "after";
constexpr std::string_view reloadDate = "date";

} // namespace

Date Codec<Date>::read(JSON::Value value)
{
    constexpr double farAway = 1e12; // Seconds; some 30,000 years.
    const double seconds = JSON::number(value);
    if (!(std::abs(seconds) < farAway))
        throw JSON::DecodingError{"is no date"};
    return Date{std::chrono::milliseconds{std::llround(seconds * 1000)}};
}

Json Codec<Date>::write(Date date)
{
    return static_cast<double>(date.time_since_epoch().count()) / 1000;
}

WidgetFamily Codec<WidgetFamily>::read(JSON::Value value)
{
    const std::string_view name = JSON::string(value);
    if (const auto family = WidgetContainer::named(name))
        return *family;
    throw JSON::DecodingError::unknownWord(name);
}

Json Codec<WidgetFamily>::write(WidgetFamily family)
{
    return WidgetContainer::name(family);
}

std::vector<WidgetFamily> Codec<std::vector<WidgetFamily>>::read(JSON::Value value)
{
    std::vector<WidgetFamily> known;
    for (const std::string_view name : JSON::listOf(JSON::string)(value)) {
        if (const auto family = WidgetContainer::named(name))
            known.push_back(*family);
    }
    return known;
}

Json Codec<std::vector<WidgetFamily>>::write(const std::vector<WidgetFamily>& families)
{
    Json json = Json::array();
    for (const WidgetFamily family : families)
        json.push_back(Protocol::write(family));
    return json;
}

View Codec<View>::read(JSON::Value value)
{
    return fromArchive(value);
}

Json Codec<View>::write(const View& view)
{
    return toArchive(view);
}

Color Codec<Color>::read(JSON::Value value)
{
    return colorFromArchive(value);
}

Json Codec<Color>::write(const Color& color)
{
    return toArchive(color);
}

std::optional<URL> Codec<std::optional<URL>>::read(JSON::Value value)
{
    return value.is_null() ? std::nullopt : URL::parse(JSON::string(value));
}

Json Codec<std::optional<URL>>::write(const std::optional<URL>& url)
{
    return url ? Json(url->text()) : Json(nullptr);
}

ReloadAfter Codec<ReloadAfter>::read(JSON::Value value)
{
    const JSON::Object reload{value};
    if (reload.required(reloadPolicy, JSON::string) != afterDate)
        throw JSON::DecodingError{"is of an unknown policy"};
    return {.date = reload.required(reloadDate, &Protocol::read<Date>)};
}

Json Codec<ReloadAfter>::write(const ReloadAfter& reload)
{
    return {{reloadPolicy, afterDate}, {reloadDate, Protocol::write(reload.date)}};
}

} // namespace skyvane::Protocol
