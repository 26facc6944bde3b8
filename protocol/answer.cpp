#include "protocol/answer.h"

#include "platform/json/object.h"
#include "platform/text/printable.h"
#include "protocol/calls.h"
#include "protocol/json_rpc.h"
#include "protocol/record_codec.h"

#include <string>

namespace skyvane::Protocol {

namespace {

std::string messageOf(JSON::Value error)
{
    return JSON::Object{error}.required(JsonRPC::message, JSON::text);
}

} // namespace

std::int64_t answeredID(JSON::Value answer)
{
    return JSON::Object{answer}.required(JsonRPC::id, JSON::integer);
}

JSON::Value resultOf(JSON::Value answer, std::int64_t id)
{
    const JSON::Object members{answer};
    if (members.required(JsonRPC::jsonrpc, JSON::string) != JsonRPC::version)
        throw JSON::DecodingError{"expected \"2.0\""}.inMember(JsonRPC::jsonrpc);
    if (const auto message = members.optional(JsonRPC::error, messageOf))
        throw Refused{Unicode::oneLine(*message)};
    if (members.required(JsonRPC::id, JSON::integer) != id)
        throw JSON::DecodingError{"is that of another request"}.inMember(JsonRPC::id);
    return members.required(JsonRPC::result, [](JSON::Value value) { return value; });
}

// For a host, which need not see how records are read.
template WidgetList read(JSON::Value result);
template OneEntry read(JSON::Value result);
template WidgetTimeline read(JSON::Value result);
template WidgetTimelines read(JSON::Value result);

} // namespace skyvane::Protocol
