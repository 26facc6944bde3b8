#include "core/enrichment/json_answer.h"

#include "core/enrichment/user_agent.h"

#include <chrono>
#include <utility>

namespace skyvane {

std::optional<std::string> bodyAt(std::string_view url, const Transport& transport, std::stop_token stop)
{
    const auto parsed = URL::parse(url);
    if (!parsed)
        return std::nullopt;
    URLResponse response
        = transport({.url = *parsed, .timeout = std::chrono::seconds{8}, .headers = {userAgent()}}, stop);
    if (response.status != 200)
        return std::nullopt;
    return std::move(response.body);
}

} // namespace skyvane
