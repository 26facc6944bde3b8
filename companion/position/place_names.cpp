#include "companion/position/weather_places.h"
#include "platform/files/files.h"
#include "platform/text/catalogue.h"

#include <libintl.h>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <unordered_map>

namespace skyvane::WeatherPlaces {

namespace {

constexpr auto domain = "libgweather-4.0-locations"; // Of the library's catalogues.

/// The folder of the library's catalogues, which it has bound by the time it has read its places.
std::filesystem::path catalogueFolder()
{
    const char* bound = bindtextdomain(domain, nullptr);
    return bound != nullptr ? bound : "/usr/share/locale";
}

/// Adds to places what catalogues call them.
class Namer {
public:
    explicit Namer(Known& known) : m_known(known)
    {
        for (std::size_t place = 0; place < known.places.size(); ++place)
            m_byName[known.places[place].englishName].push_back(place);
    }

    /// The key is an English name, behind "City in Idaho, United States" and a byte 4 where there are more of
    /// it.
    void take(std::string_view key, std::string_view name)
    {
        constexpr std::string_view beginning = "City in ";
        const std::size_t end = key.find('\4');
        std::string_view region = end != std::string_view::npos ? key.substr(0, end) : "";
        key = end != std::string_view::npos ? key.substr(end + 1) : key;
        if (!region.empty() && !region.starts_with(beginning))
            return;
        region = region.empty() ? region : region.substr(beginning.size());
        const auto found = m_byName.find(key);
        if (found == m_byName.end() || name == key)
            return;
        for (const std::size_t place : found->second) {
            if (m_known.englishRegions[place].ends_with(region))
                add(m_known.places[place], name);
        }
    }

private:
    static void add(Place& place, std::string_view name)
    {
        if (name != place.name && std::ranges::find(place.otherNames, name) == place.otherNames.end())
            place.otherNames.emplace_back(name);
    }

    Known& m_known;
    std::unordered_map<std::string_view, std::vector<std::size_t>> m_byName;
};

} // namespace

void addNamesOfAllLanguages(Known& known)
{
    Namer namer{known};
    std::error_code ignored;
    std::vector<std::filesystem::path> files;
    for (const auto& language : std::filesystem::directory_iterator{catalogueFolder(), ignored})
        files.push_back(language.path() / "LC_MESSAGES" / (std::string{domain} + ".mo"));
    std::ranges::sort(files);
    constexpr std::size_t largestCatalogue = std::size_t{4} << 20;
    for (const auto& file : files) {
        if (const auto bytes = Files::read(file, largestCatalogue))
            Catalogues::visit(
                *bytes, [&](std::string_view key, std::string_view name) { namer.take(key, name); });
    }
}

} // namespace skyvane::WeatherPlaces
