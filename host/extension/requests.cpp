#include "host/extension/requests.h"

#include <nlohmann/json.hpp>

namespace skyvane::ExtensionRequests {

nlohmann::ordered_json target(std::string_view kind, WidgetFamily family)
{
    return {{"kind", kind}, {"family", WidgetContainer::name(family)}};
}

QByteArray line(std::int64_t id, std::string_view method, const nlohmann::ordered_json& params)
{
    const nlohmann::ordered_json request{
        {"jsonrpc", "2.0"}, {"id", id}, {"method", method}, {"params", params}};
    return QByteArray::fromStdString(request.dump()) + '\n';
}

} // namespace skyvane::ExtensionRequests
