#include "companion/atlas/own_names.h"

#include "platform/files/files.h"
#include "platform/text/catalogue.h"

#include <string_view>

namespace skyvane::Atlas {

namespace {

constexpr std::size_t largestCatalogue = std::size_t{4} << 20;

/// What the key names when it is a city's: alone, or the one of a country where there are more of its name,
/// "City in Russia" and a byte 4 before it. Those of a state are smaller.
std::string_view cityOf(std::string_view key)
{
    constexpr std::string_view beginning = "City in ";
    const std::size_t end = key.find('\4');
    if (end == std::string_view::npos)
        return key;
    const std::string_view context = key.substr(0, end);
    const bool isOfCountry = context.starts_with(beginning) && context.find(',') == std::string_view::npos;
    return isOfCountry ? key.substr(end + 1) : std::string_view{};
}

} // namespace

std::unordered_map<std::string, std::string> ownNames(
    const std::filesystem::path& folder, const std::vector<std::string>& languages)
{
    std::unordered_map<std::string, std::string> names;
    for (const std::string& language : languages) {
        const auto bytes
            = Files::read(folder / language / "LC_MESSAGES/libgweather-4.0-locations.mo", largestCatalogue);
        if (!bytes)
            continue;
        Catalogues::visit(*bytes, [&](std::string_view key, std::string_view name) {
            const std::string_view city = cityOf(key);
            if (!city.empty() && !name.empty())
                names.emplace(city, name);
        });
        break;
    }
    return names;
}

} // namespace skyvane::Atlas
