#include "widgets/extension/message.h"

#include "platform/json/source.h"
#include "platform/json/value.h"
#include "ui/layout/widget_container.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

namespace skyvane::Extension {

namespace {

using JSON::Value;

struct InvalidParams {
    std::string message;
};

std::optional<Value> member(Value object, std::string_view key)
{
    Value found;
    return object.at_key(key).get(found) == simdjson::SUCCESS ? std::optional{found} : std::nullopt;
}

/// Absent when there is none, or another value than a number, a string or null.
std::optional<RequestID> identity(std::optional<std::string_view> source)
{
    const bool isOne = source
        && (source->front() == '"' || source->front() == '-' || source->front() == 'n'
            || (source->front() >= '0' && source->front() <= '9'));
    return isOne ? std::optional{RequestID{*source}} : std::nullopt;
}

std::string quoted(std::string_view text)
{
    return '"' + std::string{text} + '"';
}

std::string_view requiredString(Value params, const std::string& key)
{
    const auto value = member(params, key);
    if (!value)
        throw InvalidParams{key + " is missing"};
    if (!JSON::isString(*value))
        throw InvalidParams{key + " is not a string"};
    return JSON::string(*value);
}

const Widget& widgetOf(Value params, const std::vector<Widget>& offered)
{
    const std::string_view kind = requiredString(params, "kind");
    const auto widget = std::ranges::find(offered, kind, &Widget::kind);
    if (widget == offered.end())
        throw InvalidParams{"unknown kind " + quoted(kind)};
    return *widget;
}

WidgetFamily familyOf(Value params)
{
    const std::string_view wanted = requiredString(params, "family");
    const auto family = WidgetContainer::named(wanted);
    if (!family)
        throw InvalidParams{"unknown family " + quoted(wanted)};
    return *family;
}

PlacedWidget placedWidget(Value params, const std::vector<Widget>& offered)
{
    const Widget& widget = widgetOf(params, offered);
    const WidgetFamily family = familyOf(params);
    if (std::ranges::find(widget.supportedFamilies, family) == widget.supportedFamilies.end())
        throw InvalidParams{
            widget.kind + " does not support family " + quoted(WidgetContainer::name(family))};
    return {.widget = &widget, .family = family};
}

bool previewFlag(Value params)
{
    const auto flag = member(params, "isPreview");
    if (!flag)
        return false;
    if (!flag->is_bool())
        throw InvalidParams{"isPreview is not true or false"};
    return flag->get_bool().value_unsafe();
}

using Call = decltype(Request::call);
using CallReader = Call (*)(Value params, const std::vector<Widget>& offered);

CallReader readerOf(std::string_view method)
{
    if (method == "widgets.list")
        return [](Value, const std::vector<Widget>&) -> Call { return ListRequest{}; };
    if (method == "widgets.placeholder")
        return [](Value params, const std::vector<Widget>& offered) -> Call {
            return PlaceholderRequest{.placed = placedWidget(params, offered)};
        };
    if (method == "widgets.snapshot")
        return [](Value params, const std::vector<Widget>& offered) -> Call {
            return SnapshotRequest{.placed = placedWidget(params, offered), .isPreview = previewFlag(params)};
        };
    if (method == "widgets.timeline")
        return [](Value params, const std::vector<Widget>& offered) -> Call {
            return TimelineRequest{.placed = placedWidget(params, offered)};
        };
    return nullptr;
}

Message readNotification(std::string_view method, std::optional<std::string_view> params)
{
    if (method != "cancel" || !params || !params->starts_with('{'))
        return IgnoredNotification{};
    auto id = identity(JSON::memberSource(*params, "id"));
    if (!id)
        return IgnoredNotification{};
    return Cancellation{.id = *std::move(id)};
}

Message readRequest(RequestID id, std::string_view method, const std::optional<Value>& params,
    const std::vector<Widget>& offered)
{
    const CallReader read = readerOf(method);
    if (read == nullptr)
        return Refusal{std::move(id), ErrorCode::unknownMethod, "unknown method " + quoted(method)};
    if (params && !params->is_object())
        return Refusal{std::move(id), ErrorCode::invalidParams, "params is not an object"};
    const JSON::Document none{"{}"};
    try {
        Call call = read(params.value_or(none.root()), offered);
        return Request{.id = std::move(id), .call = call};
    } catch (const InvalidParams& problem) {
        return Refusal{std::move(id), ErrorCode::invalidParams, problem.message};
    }
}

Refusal notARequest(std::string message)
{
    return {noID, ErrorCode::invalidRequest, std::move(message)};
}

Message readDocument(Value root, std::string_view line, const std::vector<Widget>& offered)
{
    if (!root.is_object())
        return notARequest("not a request object");
    const auto version = member(root, "jsonrpc");
    if (!version || !JSON::isString(*version) || JSON::string(*version) != "2.0")
        return notARequest("jsonrpc is not \"2.0\"");
    const auto method = member(root, "method");
    if (!method || !JSON::isString(*method))
        return notARequest("method is not a string");
    const std::string_view name = JSON::string(*method);
    const auto given = JSON::memberSource(line, "id");
    if (!given)
        return readNotification(name, JSON::memberSource(line, "params"));
    auto id = identity(given);
    if (!id)
        return notARequest("id is not a string, a number or null");
    return readRequest(*std::move(id), name, member(root, "params"), offered);
}

} // namespace

Message readMessage(std::string_view line, const std::vector<Widget>& offered)
{
    try {
        const JSON::Document document{line};
        return readDocument(document.root(), line, offered);
    } catch (const JSON::DecodingError& error) {
        return Refusal{noID, ErrorCode::parseError, error.what()};
    }
}

} // namespace skyvane::Extension
