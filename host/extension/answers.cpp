#include "host/extension/answers.h"

#include "host/extension/error.h"
#include "ui/archive/archive.h"

#include <cmath>
#include <optional>
#include <string_view>

namespace skyvane::ExtensionAnswers {

namespace {

std::optional<JSON::Value> optionalMember(JSON::Value object, std::string_view key)
{
    JSON::Value value;
    if (JSON::object(object).at_key(key).get(value) != simdjson::SUCCESS || value.is_null())
        return std::nullopt;
    return value;
}

/// What `decode` makes of a member; its errors name the place.
template <class Decode>
auto member(JSON::Value object, std::string_view key, Decode&& decode)
{
    try {
        const auto value = optionalMember(object, key);
        if (!value)
            throw JSON::DecodingError{"is missing"};
        return decode(*value);
    } catch (const JSON::DecodingError& error) {
        throw error.inMember(key);
    }
}

template <class Decode>
auto elements(JSON::Value value, Decode&& decode)
{
    std::vector<decltype(decode(value))> list;
    for (const JSON::Value element : JSON::array(value)) {
        try {
            list.push_back(decode(element));
        } catch (const JSON::DecodingError& error) {
            throw error.inElement(list.size());
        }
    }
    return list;
}

std::string text(JSON::Value value)
{
    return std::string{JSON::string(value)};
}

Date date(JSON::Value value)
{
    constexpr double farAway = 1e12; // Seconds; some 30,000 years.
    const double seconds = JSON::number(value);
    if (!(std::abs(seconds) < farAway))
        throw JSON::DecodingError{"is no date"};
    return Date{std::chrono::milliseconds{std::llround(seconds * 1000)}};
}

std::vector<WidgetFamily> families(JSON::Value value)
{
    std::vector<WidgetFamily> known;
    for (const std::string& name : elements(value, text)) {
        if (const auto family = WidgetContainer::named(name))
            known.push_back(*family);
    }
    return known;
}

WidgetInfo widget(JSON::Value value)
{
    return {
        .kind = member(value, "kind", text),
        .displayName = member(value, "displayName", text),
        .description = member(value, "description", text),
        .families = member(value, "families", families),
    };
}

WidgetEntry widgetEntry(JSON::Value value)
{
    const auto url = optionalMember(value, "url");
    return {
        .date = member(value, "date", date),
        .isSample = member(value, "isSample", JSON::boolean),
        .view = member(value, "view", fromArchive),
        .background = member(value, "background", colorFromArchive),
        .url = url ? URL::parse(JSON::string(*url)) : std::nullopt,
    };
}

Date reloadDate(JSON::Value value)
{
    if (member(value, "policy", text) != "after")
        throw JSON::DecodingError{"is of an unknown policy"};
    return member(value, "date", date);
}

} // namespace

std::int64_t id(JSON::Value answer)
{
    return member(answer, "id", JSON::integer);
}

JSON::Value result(JSON::Value answer, std::int64_t id)
{
    if (member(answer, "jsonrpc", text) != "2.0")
        throw JSON::DecodingError{"expected \"2.0\""}.inMember("jsonrpc");
    if (const auto error = optionalMember(answer, "error"))
        throw ExtensionError{"the widget extension refused: " + member(*error, "message", text)};
    if (member(answer, "id", JSON::integer) != id)
        throw JSON::DecodingError{"is that of another request"}.inMember("id");
    return member(answer, "result", [](JSON::Value value) { return value; });
}

std::vector<WidgetInfo> widgets(JSON::Value result)
{
    return member(result, "widgets", [](JSON::Value list) { return elements(list, widget); });
}

WidgetEntry entry(JSON::Value result)
{
    return member(result, "entry", widgetEntry);
}

WidgetTimeline timeline(JSON::Value result)
{
    return {
        .entries = member(result, "entries", [](JSON::Value list) { return elements(list, widgetEntry); }),
        .reloadDate = member(result, "reload", reloadDate),
    };
}

} // namespace skyvane::ExtensionAnswers
