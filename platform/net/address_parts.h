#pragma once

#include "platform/net/handles.h"

#include <charconv>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace skyvane {

/// 0 for what is no port.
inline std::uint16_t portNumber(std::string_view text)
{
    std::uint16_t port = 0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), port);
    return error == std::errc{} && end == text.end() ? port : std::uint16_t{0};
}

/// The parts of a URL as the HTTP library sees them, which is who connects there.
class AddressParts {
public:
    AddressParts(const std::string& url, unsigned flags) : m_flags(flags)
    {
        curl_url_set(m_handle.get(), CURLUPART_URL, url.c_str(), flags);
    }

    /// Empty where there is none.
    std::string get(CURLUPart part, unsigned more = 0) const
    {
        char* text = nullptr;
        if (curl_url_get(m_handle.get(), part, &text, m_flags | more) != CURLUE_OK)
            return {};
        std::string copy{text};
        curl_free(text);
        return copy;
    }
    void set(CURLUPart part, const std::string& text)
    {
        curl_url_set(m_handle.get(), part, text.c_str(), m_flags);
    }

    /// An IPv6 address without its brackets.
    std::string host() const
    {
        const std::string host = get(CURLUPART_HOST, CURLU_URLDECODE);
        return host.starts_with('[') ? host.substr(1, host.size() - 2) : host;
    }

private:
    std::unique_ptr<CURLU, Release<curl_url_cleanup>> m_handle{curl_url()};
    unsigned m_flags;
};

} // namespace skyvane
