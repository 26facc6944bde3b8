#include "companion/position/map_link.h"

#include "companion/position/parts.h"
#include "core/enrichment/ascii.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace skyvane::MapLink {

namespace {

constexpr std::size_t longestLink = 8192; // Bytes.

std::string inLowercase(std::string_view text)
{
    std::string lower{text};
    std::ranges::transform(lower, lower.begin(), ASCII::lowercased);
    return lower;
}

std::optional<int> hexDigit(char character)
{
    int value = 0;
    const auto [end, error] = std::from_chars(&character, &character + 1, value, 16);
    return error == std::errc{} ? std::optional{value} : std::nullopt;
}

/// "%2C" is a comma, "+" a blank.
std::string decoded(std::string_view text)
{
    std::string plain;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const bool isCoded = text[place] == '%' && place + 2 < text.size();
        const auto high = isCoded ? hexDigit(text[place + 1]) : std::nullopt;
        const auto low = isCoded ? hexDigit(text[place + 2]) : std::nullopt;
        if (high && low) {
            plain += static_cast<char>(*high * 16 + *low);
            place += 2;
        } else {
            plain += text[place] == '+' ? ' ' : text[place];
        }
    }
    return plain;
}

/// Takes the number that the text begins with.
std::optional<double> takeNumber(std::string_view& text)
{
    double value = 0;
    const auto [stop, error]
        = std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    const bool isNumber = error == std::errc{} && (value - value == 0);
    if (!isNumber)
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(stop - text.data()));
    return value;
}

/// Two numbers at the beginning, parted by one of these characters and blanks.
std::optional<Coordinate> pairOf(std::string_view text, std::string_view separators)
{
    const auto takeBlanks = [&] { text.remove_prefix(std::min(text.find_first_not_of(' '), text.size())); };
    takeBlanks();
    const auto latitude = takeNumber(text);
    takeBlanks();
    if (!latitude || text.empty() || separators.find(text.front()) == std::string_view::npos)
        return std::nullopt;
    text.remove_prefix(1);
    takeBlanks();
    const auto longitude = takeNumber(text);
    if (!longitude)
        return std::nullopt;
    return Coordinate{.latitude = *latitude, .longitude = *longitude};
}

struct Link {
    std::string host;
    std::string path;
    std::vector<std::pair<std::string, std::string>> query; ///< Keys in small letters.
    std::string fragment;

    /// Null where the key is missing.
    const std::string* value(std::string_view key) const
    {
        const auto found = std::ranges::find(query, key, &std::pair<std::string, std::string>::first);
        return found != query.end() ? &found->second : nullptr;
    }
};

std::string_view withoutScheme(std::string_view text)
{
    const std::string lower = inLowercase(text.substr(0, 8));
    for (const std::string_view scheme : {"https://", "http://"}) {
        if (lower.starts_with(scheme))
            return text.substr(scheme.size());
    }
    return text;
}

Link linkOf(std::string_view text)
{
    text = withoutScheme(text);
    Link link;
    const std::size_t hash = text.find('#');
    if (hash != std::string_view::npos)
        link.fragment = decoded(text.substr(hash + 1));
    text = text.substr(0, hash);
    const std::size_t question = text.find('?');
    if (question != std::string_view::npos) {
        for (const std::string_view field : parts(text.substr(question + 1), '&')) {
            const std::size_t equals = std::min(field.find('='), field.size());
            link.query.emplace_back(inLowercase(decoded(field.substr(0, equals))),
                decoded(field.substr(std::min(equals + 1, field.size()))));
        }
    }
    text = text.substr(0, question);
    const std::size_t slash = std::min(text.find('/'), text.size());
    link.host = inLowercase(text.substr(0, slash));
    link.path = decoded(text.substr(slash));
    return link;
}

/// Of "…!3d48.137!4d11.575…" the last: the place itself, where the "@" before is the middle of the map.
std::optional<Coordinate> ofData(const std::string& path)
{
    const std::size_t latitude = path.rfind("!3d");
    if (latitude == std::string::npos)
        return std::nullopt;
    std::string rest = path.substr(latitude + 3);
    const std::size_t longitude = rest.find("!4d");
    if (longitude == std::string::npos)
        return std::nullopt;
    rest.replace(longitude, 3, ",");
    return pairOf(rest, ",");
}

std::optional<Coordinate> ofKeys(const Link& link, const char* latitude, const char* longitude)
{
    const std::string* first = link.value(latitude);
    const std::string* second = link.value(longitude);
    return first != nullptr && second != nullptr ? pairOf(*first + "," + *second, ",") : std::nullopt;
}

/// Of one value that holds both: "51.5,-0.12", "51.5~-0.12", "point.51.5_-0.12_Home", "loc:51.5,-0.12".
std::optional<Coordinate> ofValue(const Link& link, const char* key)
{
    const std::string* value = link.value(key);
    if (value == nullptr)
        return std::nullopt;
    std::string_view text = *value;
    for (const std::string_view beginning : {"point.", "loc:", "pos."}) {
        if (text.starts_with(beginning))
            text.remove_prefix(beginning.size());
    }
    return pairOf(text, ",~_");
}

/// Behind an "@", or as a part of the path of its own.
std::optional<Coordinate> ofPath(const std::string& path)
{
    if (const std::size_t at = path.find('@'); at != std::string::npos) {
        if (const auto found = pairOf(std::string_view{path}.substr(at + 1), ","))
            return found;
    }
    for (const std::string_view part : parts(path, '/')) {
        if (const auto found = pairOf(part, ","))
            return found;
    }
    return std::nullopt;
}

/// "map=15/51.5/-0.12", "15/51.5/-0.12".
std::optional<Coordinate> ofFragment(std::string_view fragment)
{
    const std::size_t map = fragment.find("map=");
    if (map != std::string_view::npos)
        fragment.remove_prefix(map + 4);
    const std::size_t slash = fragment.find('/');
    std::string_view zoom = fragment.substr(0, slash);
    if (slash == std::string_view::npos || !takeNumber(zoom) || !zoom.empty())
        return std::nullopt;
    return pairOf(fragment.substr(slash + 1), "/");
}

/// The middle of the square that a short link of OpenStreetMap names: bits of longitude and latitude by
/// turns.
std::optional<Coordinate> ofShortLink(const Link& link)
{
    constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_~";
    constexpr std::string_view folder = "/go/";
    if (!link.host.ends_with("osm.org") && !link.host.ends_with("openstreetmap.org"))
        return std::nullopt;
    if (!link.path.starts_with(folder))
        return std::nullopt;
    std::uint64_t east = 0;
    std::uint64_t north = 0;
    int bits = 0;
    for (const char letter : std::string_view{link.path}.substr(folder.size())) {
        const std::size_t value = alphabet.find(letter == '@' ? '~' : letter);
        if (value == std::string_view::npos || bits >= 30)
            break;
        for (int shift = 4; shift >= 0; shift -= 2) {
            east = east << 1U | ((value >> static_cast<unsigned>(shift + 1)) & 1U);
            north = north << 1U | ((value >> static_cast<unsigned>(shift)) & 1U);
            ++bits;
        }
    }
    if (bits == 0)
        return std::nullopt;
    const auto squares = static_cast<double>(std::uint64_t{1} << static_cast<unsigned>(bits));
    return Coordinate{.latitude = (static_cast<double>(north) + 0.5) / squares * 180 - 90,
        .longitude = (static_cast<double>(east) + 0.5) / squares * 360 - 180};
}

} // namespace

bool isLink(std::string_view text)
{
    const std::string_view rest = withoutScheme(text);
    if (text.size() > longestLink || text.find_first_of(" \t\n\r") != std::string_view::npos)
        return false;
    if (rest.size() != text.size())
        return true;
    const std::string_view host = text.substr(0, text.find_first_of("/?#"));
    const std::size_t dot = host.rfind('.');
    const auto isLetter = [](char character) {
        return ASCII::lowercased(character) >= 'a' && ASCII::lowercased(character) <= 'z';
    };
    return host.size() < text.size() && dot != std::string_view::npos && host.size() > dot + 2
        && std::ranges::all_of(host.substr(dot + 1), isLetter);
}

std::optional<Coordinate> angles(std::string_view text)
{
    const Link link = linkOf(text);
    auto found = ofData(link.path);
    if (!found)
        found = ofKeys(link, "mlat", "mlon");
    for (const char* key :
        {"q", "query", "ll", "coordinate", "sp", "where1", "destination", "daddr", "sll", "center", "cp"}) {
        if (!found)
            found = ofValue(link, key);
    }
    if (!found)
        found = ofPath(link.path);
    if (!found)
        found = ofFragment(link.fragment);
    for (const auto& [latitude, longitude] : {std::pair{"lat", "lon"}, std::pair{"lat", "lng"},
             std::pair{"latitude", "longitude"}, std::pair{"lat", "long"}}) {
        if (!found)
            found = ofKeys(link, latitude, longitude);
    }
    return found ? found : ofShortLink(link);
}

bool isShortened(std::string_view text)
{
    const Link link = linkOf(text);
    constexpr std::array<std::string_view, 5> hosts{
        "maps.app.goo.gl", "goo.gl", "g.co", "maps.apple", "binged.it"};
    return std::ranges::find(hosts, link.host) != hosts.end()
        || (link.host.ends_with("bing.com") && link.path.starts_with("/maps/s/"));
}

} // namespace skyvane::MapLink
