#include "core/enrichment/polite_request.h"

#include <chrono>
#include <utility>

namespace skyvane {

HTTPHeader userAgent()
{
    return {.name = "User-Agent", .value = "Skyvane/1.1 (+mailto:" SKYVANE_CONTACT_EMAIL ")"};
}

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
