#pragma once

#include "platform/json/decode.h"
#include "platform/net/transport.h"

#include <exception>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>

namespace skyvane {

/// The body that one polite GET brings with status 200; absent otherwise. A text that forms no URL asks
/// nobody. Throws what the transport throws.
std::optional<std::string> bodyAt(std::string_view url, const Transport& transport, std::stop_token stop);

/// The record in that body. Every failure, cancellation included, is absence; the caller never learns which.
template <class Record>
std::optional<Record> recordAt(std::string_view url, const Transport& transport, std::stop_token stop)
{
    try {
        const std::optional<std::string> body = bodyAt(url, transport, stop);
        if (!body)
            return std::nullopt;
        return JSON::decodeText<Record>(*body);
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace skyvane
