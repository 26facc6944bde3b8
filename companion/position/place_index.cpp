#include "companion/position/place_index.h"

#include "companion/position/folded.h"
#include "core/enrichment/ascii.h"
#include "core/radar/great_circle.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>
#include <utility>

namespace skyvane {

namespace {

constexpr int noMatch = 9;
constexpr int inside = 6; ///< The first rank of what may be a mistake.

/// "\nmunchen\nmunich\n", each once.
std::string joined(const std::vector<std::string>& names)
{
    std::string list = "\n";
    for (const std::string& name : names) {
        if (!name.empty() && list.find("\n" + name + "\n") == std::string::npos)
            list += name + "\n";
    }
    return list;
}

/// Calls `take` with each of such names until it says yes.
template <class Take>
bool anyOf(std::string_view names, Take take)
{
    for (std::size_t start = 1; start < names.size();) {
        const std::size_t end = names.find('\n', start);
        if (take(names.substr(start, end - start)))
            return true;
        start = end + 1;
    }
    return false;
}

/// With one error in what has been typed of it so far.
bool isBegunNearly(std::string_view name, std::string_view typed)
{
    constexpr std::size_t tellingLength = 5; // Bytes.
    if (typed.size() < tellingLength || name.size() <= typed.size())
        return false;
    for (const std::size_t length : {typed.size() - 1, typed.size(), typed.size() + 1}) {
        if (Folded::isNearly(name.substr(0, length), typed))
            return true;
    }
    return false;
}

} // namespace

/// What was typed, made ready.
struct PlaceIndex::Query {
    /// A word as it stands at the beginning of a name, or of a later word.
    struct Word {
        std::string inFront;
        std::string behind;

        bool begins(std::string_view names) const
        {
            return names.find(inFront) != std::string_view::npos
                || names.find(behind) != std::string_view::npos;
        }
    };

    explicit Query(std::string_view typed)
        : text(Folded::text(typed)), beginning("\n" + text), whole(beginning + "\n")
    {
        for (const std::string_view word : Folded::words(text))
            words.push_back({.inFront = "\n" + std::string{word}, .behind = " " + std::string{word}});
        firstWord = text.substr(0, text.find(' '));
    }

    std::string text;
    std::string beginning;
    std::string whole;
    std::string firstWord{};
    std::vector<Word> words{};
};

struct PlaceIndex::Match {
    int rank;
    const Entry* entry;
};

PlaceIndex::PlaceIndex(std::vector<Place> places)
{
    m_entries.reserve(places.size());
    for (Place& place : places) {
        std::vector<std::string> names{Folded::text(place.name), Folded::text(place.englishName)};
        const std::size_t ownNames = joined(names).size();
        names.push_back(Folded::writtenOut(place.name));
        for (const std::string& other : place.otherNames) {
            names.push_back(Folded::text(other));
            names.push_back(Folded::writtenOut(other));
        }
        place.otherNames = {}; // Found by the folded ones.
        std::string codes = joined({Folded::text(place.code), Folded::text(place.shortCode)});
        std::string region = " " + Folded::text(place.region);
        m_entries.push_back({
            .place = std::move(place),
            .names = joined(names),
            .ownNames = ownNames,
            .codes = std::move(codes),
            .region = std::move(region),
        });
    }
}

int PlaceIndex::rank(const Entry& entry, const Query& query)
{
    if (entry.codes.find(query.whole) != std::string::npos)
        return 0;
    const std::string_view names = entry.names;
    const std::string_view own = names.substr(0, entry.ownNames);
    const auto isKnown = [&](const Query::Word& word) {
        return word.begins(names) || entry.region.find(word.behind) != std::string::npos
            || entry.codes.find(word.inFront) != std::string::npos;
    };
    if (names.find(query.firstWord) == std::string_view::npos)
        return noMatch;
    if (own.find(query.whole) != std::string_view::npos)
        return 0;
    if (names.find(query.whole) != std::string_view::npos)
        return 1;
    if (own.find(query.beginning) != std::string_view::npos)
        return 2;
    if (names.find(query.beginning) != std::string_view::npos)
        return 3;
    if (query.words.front().begins(names) && std::all_of(query.words.begin() + 1, query.words.end(), isKnown))
        return names.find(query.words.front().inFront) != std::string_view::npos ? 4 : 5;
    constexpr std::size_t tellingLength = 3;
    return query.text.size() >= tellingLength && names.find(query.text) != std::string_view::npos ? inside
                                                                                                  : noMatch;
}

/// The whole name with one error, or its first word when the others say the region.
bool PlaceIndex::isNearly(const Entry& entry, const Query& query)
{
    if (anyOf(entry.names, [&](std::string_view name) { return Folded::isNearly(name, query.text); }))
        return true;
    if (query.words.size() < 2)
        return false;
    const std::string& first = query.firstWord;
    const auto isInRegion
        = [&](const Query::Word& word) { return entry.region.find(word.behind) != std::string::npos; };
    constexpr std::size_t tellingLength = 4;
    return first.size() >= tellingLength
        && std::all_of(query.words.begin() + 1, query.words.end(), isInRegion)
        && anyOf(entry.names, [&](std::string_view name) { return Folded::isNearly(name, first); });
}

std::vector<PlaceIndex::Match> PlaceIndex::matches(const Query& query) const
{
    std::vector<Match> found;
    for (const Entry& entry : m_entries) {
        if (const int match = rank(entry, query); match < noMatch)
            found.push_back({.rank = match, .entry = &entry});
    }
    constexpr std::size_t tellingLength = 4;
    const bool isMistake
        = std::ranges::all_of(found, [](const Match& match) { return match.rank >= inside; });
    if (!isMistake || query.text.size() < tellingLength)
        return found;
    for (const Entry& entry : m_entries) {
        if (rank(entry, query) < noMatch)
            continue;
        const auto isBegun = [&](std::string_view name) { return isBegunNearly(name, query.text); };
        if (isNearly(entry, query))
            found.push_back({.rank = inside + 1, .entry = &entry});
        else if (anyOf(entry.names, isBegun))
            found.push_back({.rank = inside + 2, .entry = &entry});
    }
    return found;
}

std::optional<Coordinate> PlaceIndex::middleOf(const std::string& timeZone) const
{
    const auto found = std::ranges::find_if(m_entries, [&](const Entry& entry) {
        return entry.place.isPrincipal && !timeZone.empty() && entry.place.timeZone == timeZone;
    });
    return found != m_entries.end() ? std::optional{found->place.coordinate} : std::nullopt;
}

std::vector<Place> PlaceIndex::find(std::string_view typed, const Vantage& from, std::size_t limit) const
{
    const Query query{typed};
    if (query.words.empty())
        return {};
    std::string country = from.countryCode;
    std::ranges::transform(country, country.begin(), ASCII::uppercased);
    const auto middle = middleOf(from.timeZone);
    const auto isNear = [&](const Place& place) {
        constexpr double nearNM = 540; // 1000 km.
        return (!from.timeZone.empty() && place.timeZone == from.timeZone)
            || (middle && GreatCircle::distanceNM(place.coordinate, *middle) < nearNM);
    };
    const auto order = [&](const Match& match) {
        const Place& place = match.entry->place;
        const bool isNamed = match.rank <= 1 || match.rank == inside + 1;
        const bool isByCode = match.entry->codes.find(query.whole) != std::string::npos;
        const std::array weaknesses{!place.isPrincipal, place.countryCode != country};
        return std::tuple(match.rank, place.isAirport() && !isByCode, !isNear(place),
            weaknesses[isNamed ? 0 : 1], weaknesses[isNamed ? 1 : 0], -place.thousands, place.name.size(),
            std::string_view{place.name}, std::string_view{place.region});
    };
    std::vector<std::pair<decltype(order(std::declval<Match>())), const Entry*>> ordered;
    for (const Match& match : matches(query))
        ordered.emplace_back(order(match), match.entry);
    const auto end = ordered.begin() + static_cast<std::ptrdiff_t>(std::min(limit, ordered.size()));
    std::partial_sort(ordered.begin(), end, ordered.end(),
        [](const auto& one, const auto& other) { return one.first < other.first; });
    std::vector<Place> found;
    std::transform(ordered.begin(), end, std::back_inserter(found),
        [](const auto& match) { return match.second->place; });
    return found;
}

std::optional<NearbyPlace> PlaceIndex::nearest(const Coordinate& position) const
{
    constexpr double farthestNM = 300;
    constexpr double degreesOfLatitude = farthestNM / 60;
    const Entry* best = nullptr;
    double least = 0;
    for (const Entry& entry : m_entries) {
        const Place& place = entry.place;
        if (place.isAirport() || std::abs(place.coordinate.latitude - position.latitude) > degreesOfLatitude)
            continue;
        const double distance = GreatCircle::distanceNM(place.coordinate, position);
        constexpr double unknownSize = 3; // Thousands.
        const double remoteness = distance / std::sqrt(place.thousands + unknownSize);
        if (distance < farthestNM && (best == nullptr || remoteness < least)) {
            best = &entry;
            least = remoteness;
        }
    }
    if (best == nullptr)
        return std::nullopt;
    const Coordinate& there = best->place.coordinate;
    return NearbyPlace{.name = best->place.name,
        .distanceNM = GreatCircle::distanceNM(there, position),
        .bearingDeg = GreatCircle::initialBearing(there, position)};
}

bool PlaceIndex::isNameOfThere(std::string_view name, const Coordinate& position) const
{
    constexpr double thereNM = 30;
    const std::string whole = "\n" + Folded::text(name) + "\n";
    return std::ranges::any_of(m_entries, [&](const Entry& entry) {
        return entry.names.find(whole) != std::string::npos
            && GreatCircle::distanceNM(entry.place.coordinate, position) < thereNM;
    });
}

} // namespace skyvane
