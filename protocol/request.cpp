#include "protocol/request.h"

#include "platform/json/object.h"
#include "protocol/json_rpc.h"
#include "protocol/record_codec.h"

#include <type_traits>

namespace skyvane::Protocol {

namespace {

template <class Call>
Call readAs(JSON::Value params)
{
    try {
        JSON::object(params);
    } catch (const JSON::DecodingError& error) {
        throw error.inMember(JsonRPC::params);
    }
    return {.params = read<typename Call::Params>(params)};
}

template <class... Call>
std::optional<AnyCall> readOneOf(
    std::type_identity<std::variant<Call...>>, std::string_view method, JSON::Value params)
{
    std::optional<AnyCall> found;
    ((method == Call::name ? void(found = readAs<Call>(params)) : void()), ...);
    return found;
}

} // namespace

std::string requestLine(std::int64_t id, const AnyCall& call)
{
    return std::visit(
        [id](const auto& one) {
            const Json request{
                {JsonRPC::jsonrpc, JsonRPC::version},
                {JsonRPC::id, id},
                {JsonRPC::method, one.name},
                {JsonRPC::params, write(one.params)},
            };
            return request.dump() + '\n';
        },
        call);
}

std::optional<AnyCall> readCall(std::string_view method, JSON::Value params)
{
    return readOneOf(std::type_identity<AnyCall>{}, method, params);
}

} // namespace skyvane::Protocol
