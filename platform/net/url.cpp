#include "platform/net/url.h"

#include <uriparser/Uri.h>

#include <algorithm>

namespace skyvane {

std::optional<URL> URL::parse(std::string_view text)
{
    if (text.empty())
        return std::nullopt;
    UriUriA parts;
    if (uriParseSingleUriExA(&parts, text.data(), text.data() + text.size(), nullptr) != URI_SUCCESS)
        return std::nullopt;
    uriFreeUriMembersA(&parts);
    return URL{std::string{text}};
}

std::string URL::scheme() const
{
    const std::size_t end = m_text.find_first_of(":/?#");
    if (end == std::string::npos || m_text[end] != ':')
        return {};
    std::string scheme = m_text.substr(0, end);
    std::ranges::transform(scheme, scheme.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return scheme;
}

} // namespace skyvane
