#include "companion/position/weather_places.h"

#include "companion/position/coordinates.h"

#undef signals // The toolkit's keyword is a name in the library's headers.
#include <libgweather/gweather.h>

#include <cmath>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_set>

namespace skyvane::WeatherPlaces {

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

/// The names of what a place lies in, innermost first.
struct Region {
    std::string own; ///< In the user's language.
    std::string english;
};

std::string inside(const std::string& name, const std::string& outer)
{
    if (name.empty() || name == outer)
        return outer;
    return outer.empty() ? name : name + ", " + outer;
}

class Reader {
public:
    Known known;

    void read(GWeatherLocation* location, const Region& region)
    {
        const GWeatherLocationLevel level = gweather_location_get_level(location);
        if (level == GWEATHER_LOCATION_CITY || level == GWEATHER_LOCATION_WEATHER_STATION)
            add(location, region);
        const std::string name = textOrNone(gweather_location_get_name(location));
        if (level == GWEATHER_LOCATION_COUNTRY)
            known.countries.emplace(textOrNone(gweather_location_get_country(location)), name);
        const Region inner = isRegion(location)
            ? Region{.own = inside(name, region.own),
                .english = inside(textOrNone(gweather_location_get_english_name(location)), region.english)}
            : region;
        for (Location child{gweather_location_next_child(location, nullptr)}; child != nullptr;
             child.reset(gweather_location_next_child(location, child.release())))
            read(child.get(), inner);
    }

private:
    void add(GWeatherLocation* location, const Region& region)
    {
        const std::string code = textOrNone(gweather_location_get_code(location));
        const bool isKnown = !code.empty() && !m_codes.insert(code).second;
        const auto coordinate = coordinateOf(location);
        if (isKnown || !coordinate)
            return;
        const std::string name = textOrNone(gweather_location_get_name(location));
        const std::string englishName = textOrNone(gweather_location_get_english_name(location));
        const bool isItsRegion = region.own.starts_with(name + ", ");
        known.places.push_back({
            .name = name,
            .englishName = englishName,
            .region = isItsRegion ? region.own.substr(name.size() + 2) : region.own,
            .countryCode = textOrNone(gweather_location_get_country(location)),
            .code = code,
            .coordinate = *coordinate,
            .isPrincipal = code.empty() && givesNameToTimeZone(location, englishName),
            .timeZone = textOrNone(gweather_location_get_timezone_str(location)),
        });
        known.englishRegions.push_back(region.english);
    }

    std::unordered_set<std::string> m_codes;
};

} // namespace

Known read()
{
    Reader reader;
    if (const Location world{gweather_location_get_world()}; world != nullptr)
        reader.read(world.get(), {});
    return std::move(reader.known);
}

} // namespace skyvane::WeatherPlaces
