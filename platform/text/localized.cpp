#include "platform/text/localized.h"

#include "platform/files/files.h"
#include "platform/text/catalogue.h"

#include <clocale>
#include <string_view>

namespace skyvane {

namespace {

/// Written once, before any other thread runs.
Catalogue& translations()
{
    static Catalogue catalogue;
    return catalogue;
}

} // namespace

void useCatalogues(const std::filesystem::path& folder)
{
    constexpr std::size_t longest = 4 << 20; // Bytes.
    std::setlocale(LC_MESSAGES, ""); // For the texts of libraries.
    translations().clear();
    // The C library's own reader would translate only into languages whose locale is generated on this
    // machine.
    for (const std::string& name : Catalogues::wanted()) {
        if (const auto bytes = Files::read(folder / name / "LC_MESSAGES/skyvane.mo", longest))
            translations().merge(Catalogues::read(*bytes));
    }
}

std::string localized(const char* key)
{
    const auto found = translations().find(key);
    return found != translations().end() ? found->second : key;
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
