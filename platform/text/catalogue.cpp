#include "platform/text/catalogue.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>

namespace skyvane::Catalogues {

namespace {

/// A table of a compiled catalogue: pairs of a length and a place.
class Reader {
public:
    explicit Reader(std::string_view bytes) : m_bytes{bytes} { }

    bool isCatalogue()
    {
        constexpr std::uint32_t magic = 0x950412de;
        m_isBigEndian = number(0) != magic;
        return number(0) == magic;
    }

    /// Absent where the bytes end before.
    std::optional<std::uint32_t> number(std::size_t place) const
    {
        if (place > m_bytes.size() || m_bytes.size() - place < 4)
            return std::nullopt;
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            const std::size_t shift = 8 * (m_isBigEndian ? 3 - i : i);
            value |= std::uint32_t{static_cast<unsigned char>(m_bytes[place + i])} << shift;
        }
        return value;
    }

    /// The text that this entry of a table leads to, without the zero that ends it.
    std::optional<std::string_view> text(std::size_t entry) const
    {
        const auto length = number(entry);
        const auto place = number(entry + 4);
        if (!length || !place || *place >= m_bytes.size() || *length >= m_bytes.size() - *place)
            return std::nullopt;
        return m_bytes.substr(*place, *length);
    }

private:
    std::string_view m_bytes;
    bool m_isBigEndian = false;
};

/// That of the texts, by the line of a catalogue's head which names their language.
TextDirection directionIn(std::string_view head)
{
    constexpr std::string_view name = "\nLanguage: ";
    const std::string lines = "\n" + std::string{head};
    const std::size_t start = lines.find(name);
    if (start == std::string::npos)
        return TextDirection::leftToRight;
    const std::string_view rest = std::string_view{lines}.substr(start + name.size());
    return directionOf(rest.substr(0, rest.find('\n')));
}

std::string_view variable(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::string_view localeOfTexts()
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const std::string_view value = variable(name); !value.empty())
            return value;
    }
    return {};
}

std::string_view withoutEncoding(std::string_view locale)
{
    return locale.substr(0, locale.find_first_of(".@"));
}

bool isNeutral(std::string_view locale)
{
    const std::string_view name = withoutEncoding(locale);
    return name.empty() || name == "C" || name == "POSIX";
}

bool isEnglish(std::string_view locale)
{
    const std::string_view name = withoutEncoding(locale);
    return name.substr(0, name.find('_')) == "en";
}

/// The catalogue for readers of a language whose own names lead to none; empty without such a one.
/// Catalogues of Chinese are named after the country whose characters they are written in, and that of
/// Norwegian after its written form.
std::string_view catalogueFor(std::string_view territorial)
{
    constexpr std::string_view simplified = "zh_Hans";
    if (territorial.starts_with(simplified))
        return "zh_CN";
    for (const std::string_view name : {"zh", "zh_MY", "zh_SG"}) {
        if (territorial == name)
            return "zh_CN";
    }
    const std::string_view language = territorial.substr(0, territorial.find('_'));
    return language == "no" || language == "nn" ? "nb" : "";
}

/// Of "sr_RS.UTF-8@latin" the names "sr_RS@latin", "sr@latin", "sr_RS" and "sr".
void addNames(std::string_view locale, std::vector<std::string>& names)
{
    const std::string territorial{withoutEncoding(locale)};
    const std::string language = territorial.substr(0, territorial.find('_'));
    const std::size_t at = locale.find('@');
    const std::string variant{at != std::string_view::npos ? locale.substr(at) : ""};
    const std::string other{catalogueFor(territorial)};
    for (const std::string& name :
        {territorial + variant, language + variant, territorial, language, other}) {
        const bool isOnePartOfAPath = name.find('/') == std::string::npos;
        if (!name.empty() && isOnePartOfAPath && std::ranges::find(names, name) == names.end())
            names.push_back(name);
    }
}

} // namespace

bool visit(std::string_view bytes, const Taker& take)
{
    Reader reader{bytes};
    if (!reader.isCatalogue())
        return false;
    const auto count = reader.number(8);
    const auto keys = reader.number(12);
    const auto texts = reader.number(16);
    if (!count || !keys || !texts)
        return false;
    for (std::size_t i = 0; i < *count; ++i) {
        const auto key = reader.text(*keys + 8 * i);
        const auto text = reader.text(*texts + 8 * i);
        if (!key || !text)
            return false;
        take(key->substr(0, key->find('\0')), *text);
    }
    return true;
}

Catalogue read(std::string_view bytes)
{
    Catalogue catalogue;
    const bool isWhole = visit(bytes, [&](std::string_view key, std::string_view text) {
        if (!key.empty()) {
            catalogue.texts.emplace(key, text);
            return;
        }
        catalogue.plural = PluralRule{text};
        catalogue.direction = directionIn(text);
    });
    return isWhole ? catalogue : Catalogue{};
}

std::vector<std::string> wanted()
{
    const std::string_view locale = localeOfTexts();
    if (isNeutral(locale))
        return {};
    std::string_view rest = variable("LANGUAGE");
    if (rest.empty())
        rest = locale;
    std::vector<std::string> names;
    while (!rest.empty()) {
        const std::size_t end = rest.find(':');
        const std::string_view language = rest.substr(0, end);
        rest = end != std::string_view::npos ? rest.substr(end + 1) : "";
        if (language.empty())
            continue;
        if (isNeutral(language) || isEnglish(language))
            break;
        addNames(language, names);
    }
    return names;
}

} // namespace skyvane::Catalogues
