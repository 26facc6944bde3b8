#include "companion/position/world_places.h"

#include "companion/atlas/atlas.h"
#include "companion/position/folded.h"
#include "companion/position/weather_places.h"
#include "core/radar/great_circle.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <utility>

namespace skyvane::WorldPlaces {

namespace {

/// What most of an area's cities say, of those that say anything.
class Votes {
public:
    void add(const std::string& area, const std::string& vote)
    {
        if (!vote.empty())
            ++m_votes[area][vote];
    }

    std::string winner(const std::string& area) const
    {
        const auto found = m_votes.find(area);
        if (found == m_votes.end())
            return {};
        return std::ranges::max_element(found->second, {}, &std::pair<const std::string, int>::second)->first;
    }

private:
    std::map<std::string, std::map<std::string, int>> m_votes;
};

/// Brings the library's places and those that the program brings along together.
class Gatherer {
public:
    explicit Gatherer(WeatherPlaces::Known known)
        : m_places(std::move(known.places)), m_countries(std::move(known.countries))
    {
        for (std::size_t place = 0; place < m_places.size(); ++place)
            note(place);
    }

    void addCities(const std::vector<Atlas::City>& cities)
    {
        std::vector<const Atlas::City*> unknown;
        for (const Atlas::City& city : cities) {
            if (Place* same = placeOf(city))
                learn(*same, city);
            else
                unknown.push_back(&city);
        }
        for (const Atlas::City* city : unknown)
            add(*city);
    }

    void addAirports(const std::vector<Atlas::Airport>& airports)
    {
        for (const Atlas::Airport& airport : airports) {
            const auto known = m_byCode.find(std::string{airport.icao});
            if (!airport.icao.empty() && known != m_byCode.end())
                learn(m_places[known->second], airport);
            else
                add(airport);
        }
    }

    std::vector<Place> takePlaces() { return std::move(m_places); }

private:
    void note(std::size_t place)
    {
        const Place& noted = m_places[place];
        if (noted.isAirport()) {
            m_byCode.emplace(noted.code, place);
            return;
        }
        m_byName[noted.name].push_back(place);
        m_byName[noted.englishName].push_back(place);
        for (const std::string& name : noted.otherNames)
            m_byName[name].push_back(place);
    }

    /// Null when it is a place of its own.
    Place* placeOf(const Atlas::City& city)
    {
        constexpr double sameCityNM = 16;
        const auto found = m_byName.find(std::string{city.name});
        if (found == m_byName.end())
            return nullptr;
        const auto isSame = [&](std::size_t place) {
            const Place& known = m_places[place];
            return known.countryCode == city.countryCode
                && GreatCircle::distanceNM(known.coordinate, city.coordinate) < sameCityNM;
        };
        const auto same = std::ranges::find_if(found->second, isSame);
        return same != found->second.end() ? &m_places[*same] : nullptr;
    }

    static std::string areaOf(const Atlas::City& city)
    {
        return std::string{city.countryCode} + ' ' + std::string{city.areaCode};
    }

    void learn(Place& place, const Atlas::City& city)
    {
        place.thousands = std::max(place.thousands, city.thousands);
        if (city.name != place.name && city.name != place.englishName
            && std::ranges::find(place.otherNames, city.name) == place.otherNames.end())
            place.otherNames.emplace_back(city.name);
        m_regions.add(areaOf(city), place.region);
        for (const std::string& area : {areaOf(city), place.countryCode})
            m_timeZones.add(area, place.timeZone);
    }

    void add(const Atlas::City& city)
    {
        const std::string countryCode{city.countryCode};
        std::string region = m_regions.winner(areaOf(city));
        std::string timeZone = m_timeZones.winner(areaOf(city));
        m_places.push_back({
            .name = std::string{city.name},
            .englishName = std::string{city.name},
            .region = region.empty() ? countryOf(countryCode) : std::move(region),
            .countryCode = countryCode,
            .coordinate = city.coordinate,
            .timeZone = timeZone.empty() ? m_timeZones.winner(countryCode) : std::move(timeZone),
            .thousands = city.thousands,
        });
    }

    /// The library's airports are older than ours; where it has a name in the user's language, that stays.
    static void learn(Place& place, const Atlas::Airport& airport)
    {
        place.shortCode = airport.iata;
        place.coordinate = airport.coordinate;
        place.otherNames.push_back(place.englishName);
        if (place.name == place.englishName)
            place.name = airport.name;
        place.englishName = airport.name;
        place.thousands = airport.isLarge ? 1 : 0;
    }

    void add(const Atlas::Airport& airport)
    {
        const std::string countryCode{airport.countryCode};
        std::string region = countryOf(countryCode);
        if (!airport.city.empty() && airport.name.find(airport.city) == std::string_view::npos)
            region = std::string{airport.city} + (region.empty() ? "" : ", " + region);
        m_places.push_back({
            .name = std::string{airport.name},
            .englishName = std::string{airport.name},
            .region = std::move(region),
            .countryCode = countryCode,
            .code = std::string{airport.icao},
            .shortCode = std::string{airport.iata},
            .coordinate = airport.coordinate,
            .timeZone = m_timeZones.winner(countryCode),
            .thousands = airport.isLarge ? 1 : 0,
        });
    }

    std::string countryOf(const std::string& code) const
    {
        const auto found = m_countries.find(code);
        return found != m_countries.end() ? found->second : code;
    }

    std::vector<Place> m_places;
    std::map<std::string, std::string> m_countries;
    std::unordered_map<std::string, std::vector<std::size_t>> m_byName; ///< Cities.
    std::unordered_map<std::string, std::size_t> m_byCode; ///< Airports.
    Votes m_regions; ///< By a country's areas.
    Votes m_timeZones; ///< By countries and their areas.
};

std::vector<Place> gathered(WeatherPlaces::Known known)
{
    Gatherer gatherer{std::move(known)};
    gatherer.addCities(Atlas::cities());
    gatherer.addAirports(Atlas::airports());
    return gatherer.takePlaces();
}

} // namespace

std::vector<Place> load()
{
    return gathered(WeatherPlaces::read());
}

std::vector<Place> loadWithAllNames()
{
    WeatherPlaces::Known known = WeatherPlaces::read();
    WeatherPlaces::addNamesOfAllLanguages(known);
    return gathered(std::move(known));
}

} // namespace skyvane::WorldPlaces
