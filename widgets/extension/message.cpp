#include "widgets/extension/message.h"

#include "platform/json/object.h"
#include "platform/json/source.h"
#include "platform/json/value.h"
#include "protocol/json_rpc.h"
#include "protocol/limits.h"
#include "protocol/request.h"
#include "ui/layout/widget_container.h"
#include "widgets/extension/alerts.h"
#include "widgets/extension/offered_widget.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace skyvane::Extension {

namespace {

using JSON::Value;
using Protocol::NoParams;
namespace JsonRPC = Protocol::JsonRPC;
namespace Limits = Protocol::Limits;

/// Null is a value: it may be an id.
JSON::Object membersOf(Value value)
{
    return JSON::Object{value, JSON::Null::value};
}

/// Absent when there is none, or another value than a number, a string or null.
std::optional<RequestID> identity(std::optional<std::string_view> source)
{
    const bool isOne = source
        && (source->front() == '"' || source->front() == '-' || source->front() == 'n'
            || (source->front() >= '0' && source->front() <= '9'));
    return isOne ? std::optional{RequestID{*source}} : std::nullopt;
}

void requireOffered(const NoParams&, const std::vector<Widget>&) { }
void requireOffered(const WidgetTarget& target, const std::vector<Widget>& offered)
{
    OfferedWidget::find(target, offered);
}
void requireOffered(const Protocol::SnapshotParams& params, const std::vector<Widget>& offered)
{
    requireOffered(params.target, offered);
}
void requireOffered(const Protocol::TimelinesParams& params, const std::vector<Widget>& offered)
{
    constexpr std::string_view member = "widgets";
    const std::size_t count = params.widgets.size();
    if (count == 0 || count > Limits::mostWidgets)
        throw JSON::DecodingError::mismatch(
            "an array of 1 to " + std::to_string(Limits::mostWidgets), "one of " + std::to_string(count))
            .inMember(member);
    for (std::size_t index = 0; index < count; ++index) {
        try {
            requireOffered(params.widgets[index], offered);
        } catch (const JSON::DecodingError& problem) {
            throw problem.inElement(index).inMember(member);
        }
    }
    if (params.alerts)
        requireSound(*params.alerts);
}

Message readNotification(std::string_view method, std::optional<std::string_view> params)
{
    if (method != Protocol::cancelNotification || !params || !params->starts_with('{'))
        return IgnoredNotification{};
    auto id = identity(JSON::memberSource(*params, JsonRPC::id));
    if (!id)
        return IgnoredNotification{};
    return Cancellation{.id = *std::move(id)};
}

Message readRequest(RequestID id, std::string_view method, const std::optional<Value>& params,
    const std::vector<Widget>& offered)
{
    const JSON::Document none{"{}"};
    try {
        auto call = Protocol::readCall(method, params.value_or(none.root()));
        if (!call)
            return Refusal{
                std::move(id), ErrorCode::unknownMethod, "unknown method \"" + std::string{method} + '"'};
        std::visit([&](const auto& known) { requireOffered(known.params, offered); }, *call);
        return Request{.id = std::move(id), .call = *std::move(call)};
    } catch (const JSON::DecodingError& problem) {
        return Refusal{std::move(id), ErrorCode::invalidParams, problem.sentence()};
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
    const JSON::Object envelope = membersOf(root);
    const auto version = envelope.find(JsonRPC::jsonrpc);
    if (!version || !JSON::isString(*version) || JSON::string(*version) != JsonRPC::version)
        return notARequest("jsonrpc is not \"2.0\"");
    const auto method = envelope.find(JsonRPC::method);
    if (!method || !JSON::isString(*method))
        return notARequest("method is not a string");
    const std::string_view name = JSON::string(*method);
    const auto given = JSON::memberSource(line, JsonRPC::id);
    if (!given)
        return readNotification(name, JSON::memberSource(line, JsonRPC::params));
    auto id = identity(given);
    if (!id)
        return notARequest("id is not a string, a number or null");
    return readRequest(*std::move(id), name, envelope.find(JsonRPC::params), offered);
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
