#include "platform/json/source.h"

#include "platform/json/value.h"

#include <algorithm>
#include <string>

namespace skyvane::JSON {

namespace {

/// Walks through the text of one object, which is sound JSON.
class Walker {
public:
    explicit Walker(std::string_view object) : m_text(object) { }

    /// Past everything that stands between tokens, the object's own braces among it.
    bool isAtToken()
    {
        m_at = std::min(m_text.find_first_not_of(between, m_at), m_text.size());
        return m_at < m_text.size();
    }

    std::string_view takeValue()
    {
        const std::size_t start = m_at;
        int depth = 0;
        do {
            const char character = m_text[m_at];
            depth += character == '{' || character == '[' ? 1 : 0;
            depth -= character == '}' || character == ']' ? 1 : 0;
            if (character == '"')
                skipString();
            else if (depth > 0 || character == '}' || character == ']')
                ++m_at;
            else
                m_at = std::min(m_text.find_first_of(ends, m_at), m_text.size());
        } while (depth > 0 && m_at < m_text.size());
        return m_text.substr(start, m_at - start);
    }

    void enterObject() { m_at = m_text.find('{') + 1; }

private:
    void skipString()
    {
        for (++m_at; m_at < m_text.size() && m_text[m_at] != '"'; ++m_at)
            m_at += m_text[m_at] == '\\' ? 1 : 0;
        m_at = std::min(m_at + 1, m_text.size());
    }

    static constexpr std::string_view between = " \t\r\n,:}";
    static constexpr std::string_view ends = " \t\r\n,}]";

    std::string_view m_text;
    std::size_t m_at = 0;
};

bool spells(std::string_view token, std::string_view key)
{
    if (token.find('\\') == std::string_view::npos)
        return token.substr(1, token.size() - 2) == key;
    const Document document{token};
    return isString(document.root()) && string(document.root()) == key;
}

} // namespace

std::optional<std::string_view> memberSource(std::string_view object, std::string_view key)
{
    Walker walker{object};
    walker.enterObject();
    while (walker.isAtToken()) {
        const std::string_view name = walker.takeValue();
        if (!walker.isAtToken())
            break;
        const std::string_view value = walker.takeValue();
        if (spells(name, key))
            return value;
    }
    return std::nullopt;
}

} // namespace skyvane::JSON
