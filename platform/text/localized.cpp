#include "platform/text/localized.h"

#include <libintl.h>

#include <clocale>
#include <cstdlib>
#include <string_view>

namespace skyvane {

namespace {

constexpr const char* domain = "skyvane";

/// The C library translates only into languages whose locale is generated on this machine. In the neutral
/// UTF-8 locale it goes by the LANGUAGE variable alone.
void translateWithoutGeneratedLocale()
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* value = std::getenv(name);
        if (value == nullptr || *value == '\0')
            continue;
        if (std::setlocale(LC_MESSAGES, "C.UTF-8") != nullptr)
            setenv("LANGUAGE", value, /*overwrite=*/0);
        return;
    }
}

} // namespace

void useCatalogues(const std::filesystem::path& folder)
{
    if (std::setlocale(LC_MESSAGES, "") == nullptr)
        translateWithoutGeneratedLocale();
    bindtextdomain(domain, folder.c_str());
    bind_textdomain_codeset(domain, "UTF-8");
}

std::string localized(const char* key)
{
    return dgettext(domain, key);
}

std::string localized(const char* key, std::initializer_list<std::int64_t> numbers)
{
    constexpr std::string_view placeholder = "%lld";
    std::string text = localized(key);
    std::size_t from = 0;
    for (const std::int64_t number : numbers) {
        const std::size_t at = text.find(placeholder, from);
        if (at == std::string::npos)
            break;
        const std::string digits = std::to_string(number);
        text.replace(at, placeholder.size(), digits);
        from = at + digits.size();
    }
    return text;
}

} // namespace skyvane
