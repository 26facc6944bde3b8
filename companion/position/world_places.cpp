#include "companion/position/world_places.h"

#include "companion/position/coordinates.h"

#undef signals // The toolkit's keyword is a name in the library's headers.
#include <libgweather/gweather.h>

#include <cmath>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_set>

namespace skyvane::WorldPlaces {

namespace {

struct Unref {
    void operator()(GWeatherLocation* location) const { g_object_unref(location); }
};
using Location = std::unique_ptr<GWeatherLocation, Unref>;

std::string textOrNone(const char* text)
{
    return text != nullptr ? text : "";
}

bool isRegion(GWeatherLocation* location)
{
    const GWeatherLocationLevel level = gweather_location_get_level(location);
    return level == GWEATHER_LOCATION_ADM1 || level == GWEATHER_LOCATION_COUNTRY;
}

/// The library's data have places that are nowhere.
std::optional<Coordinate> coordinateOf(GWeatherLocation* location)
{
    if (gweather_location_has_coords(location) == FALSE)
        return std::nullopt;
    Coordinate coordinate{};
    gweather_location_get_coords(location, &coordinate.latitude, &coordinate.longitude);
    const bool isOnGlobe = std::abs(coordinate.latitude) <= 90 && std::abs(coordinate.longitude) <= 180;
    return isOnGlobe ? std::optional{Coordinates::rounded(coordinate)} : std::nullopt;
}

/// "America/New_York" names New York.
bool givesNameToTimeZone(GWeatherLocation* location, std::string_view englishName)
{
    std::string zone = textOrNone(gweather_location_get_timezone_str(location));
    for (char& character : zone)
        character = character == '_' ? ' ' : character;
    return !englishName.empty() && zone.ends_with("/" + std::string{englishName});
}

class Reader {
public:
    std::vector<Place> places;

    void read(GWeatherLocation* location, const std::string& region)
    {
        const GWeatherLocationLevel level = gweather_location_get_level(location);
        if (level == GWEATHER_LOCATION_CITY || level == GWEATHER_LOCATION_WEATHER_STATION)
            add(location, region);
        const std::string inner = isRegion(location) ? innermost(location, region) : region;
        for (Location child{gweather_location_next_child(location, nullptr)}; child != nullptr;
             child.reset(gweather_location_next_child(location, child.release())))
            read(child.get(), inner);
    }

private:
    /// The region with this one, which lies in it, before it.
    static std::string innermost(GWeatherLocation* location, const std::string& region)
    {
        const std::string name = textOrNone(gweather_location_get_name(location));
        if (name.empty() || name == region)
            return region;
        return region.empty() ? name : name + ", " + region;
    }

    void add(GWeatherLocation* location, std::string region)
    {
        const std::string code = textOrNone(gweather_location_get_code(location));
        const bool isKnown = !code.empty() && !m_codes.insert(code).second;
        const auto coordinate = coordinateOf(location);
        if (isKnown || !coordinate)
            return;
        const std::string name = textOrNone(gweather_location_get_name(location));
        const std::string englishName = textOrNone(gweather_location_get_english_name(location));
        if (region.starts_with(name + ", "))
            region.erase(0, name.size() + 2);
        places.push_back({
            .name = name,
            .englishName = englishName,
            .region = std::move(region),
            .countryCode = textOrNone(gweather_location_get_country(location)),
            .code = code,
            .coordinate = *coordinate,
            .isPrincipal = code.empty() && givesNameToTimeZone(location, englishName),
        });
    }

    std::unordered_set<std::string> m_codes;
};

} // namespace

std::vector<Place> load()
{
    Reader reader;
    if (const Location world{gweather_location_get_world()}; world != nullptr)
        reader.read(world.get(), {});
    return std::move(reader.places);
}

} // namespace skyvane::WorldPlaces
