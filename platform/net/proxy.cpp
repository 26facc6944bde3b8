#include "platform/net/proxy.h"

#include "platform/net/address_parts.h"

#include <cstdlib>
#include <string_view>

namespace skyvane {

namespace {

std::string variable()
{
    for (const char* name : {"https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY"}) {
        const char* value = std::getenv(name);
        if (value != nullptr && *value != '\0')
            return value;
    }
    return {};
}

/// The same proxy, which looks names up.
std::string_view withLookUps(std::string_view scheme)
{
    if (scheme == "socks5")
        return "socks5h";
    return scheme == "socks4" || scheme == "socks" ? "socks4a" : scheme;
}

/// The library's own defaults.
std::string_view standardPort(std::string_view scheme)
{
    return scheme == "https" ? "443" : "1080";
}

} // namespace

std::optional<Proxy> Proxy::ofEnvironment()
{
    const std::string text = variable();
    if (text.empty())
        return std::nullopt;
    AddressParts parts{text, CURLU_NON_SUPPORT_SCHEME | CURLU_GUESS_SCHEME};
    const std::string scheme = parts.get(CURLUPART_SCHEME);
    parts.set(CURLUPART_SCHEME, std::string{withLookUps(scheme)});
    const std::string url = parts.get(CURLUPART_URL);
    const std::string port = parts.get(CURLUPART_PORT);
    return Proxy{
        .url = url.empty() ? text : url,
        .host = parts.host(),
        .port = portNumber(port.empty() ? standardPort(scheme) : port),
    };
}

} // namespace skyvane
