#pragma once

#include "platform/json/value.h"
#include "platform/net/transport.h"

#include <exception>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <type_traits>

/// How the route and photo services are asked: by one GET that says who asks.
namespace skyvane {

/// "Skyvane/1.1 (+mailto:…)", whatever version this is; services may know their clients by it. Replaces the
/// session's own.
HTTPHeader userAgent();

/// The body of an answer with status 200; absent otherwise. A text that forms no URL asks nobody. Throws what
/// the transport throws.
std::optional<std::string> bodyAt(std::string_view url, const Transport& transport, std::stop_token stop);

/// What `read` makes of that body's JSON, an optional value. Every failure, cancellation included, is
/// absence; the caller never learns which.
template <class Read>
auto answerAt(std::string_view url, const Transport& transport, std::stop_token stop, Read&& read)
    -> std::invoke_result_t<Read&, JSON::Value>
{
    try {
        const std::optional<std::string> body = bodyAt(url, transport, stop);
        if (!body)
            return std::nullopt;
        const JSON::Document document{*body};
        return read(document.root());
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace skyvane
