#include "companion/atlas/atlas.h"

#include "companion/atlas/data.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace skyvane::Atlas {

namespace {

/// The fields of one line of a table.
template <std::size_t count>
using Row = std::array<std::string_view, count>;

/// Calls `take` with each line that has so many fields.
template <std::size_t count, class Take>
void readTable(std::string_view table, Take take)
{
    while (!table.empty()) {
        const std::size_t end = std::min(table.find('\n'), table.size());
        std::string_view line = table.substr(0, end);
        table.remove_prefix(std::min(end + 1, table.size()));
        Row<count> row;
        std::size_t fields = 0;
        for (; fields < count; ++fields) {
            const std::size_t tab = std::min(line.find('\t'), line.size());
            row[fields] = line.substr(0, tab);
            if (tab == line.size())
                break;
            line.remove_prefix(tab + 1);
        }
        if (fields + 1 == count)
            take(row);
    }
}

template <class Number>
Number numberOf(std::string_view text)
{
    Number value{};
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

Coordinate coordinateOf(std::string_view latitude, std::string_view longitude)
{
    return {.latitude = numberOf<double>(latitude), .longitude = numberOf<double>(longitude)};
}

/// Reads numbers of a variable length, as data/make writes them.
class LineReader {
public:
    explicit LineReader(std::string_view bytes) : m_bytes(bytes) { }

    Lines lines()
    {
        m_latitude = 0;
        m_longitude = 0;
        std::uint32_t pieces = 0;
        for (unsigned shift = 0; shift < 32; shift += 8)
            pieces |= std::uint32_t{byte()} << shift;
        Lines lines;
        while (pieces-- > 0 && m_place < m_bytes.size())
            addPiece(lines, byte());
        return lines;
    }

private:
    std::uint8_t byte()
    {
        return m_place < m_bytes.size() ? static_cast<std::uint8_t>(m_bytes[m_place++]) : std::uint8_t{0};
    }

    /// The way from one place to the next, in steps; negative ones are the odd numbers.
    int difference()
    {
        std::uint32_t value = 0;
        for (unsigned shift = 0; shift < 32; shift += 7) {
            const std::uint8_t part = byte();
            value |= (part & 0x7FU) << shift;
            if (part < 0x80)
                break;
        }
        return static_cast<int>(value >> 1U) ^ -static_cast<int>(value & 1U);
    }

    void addPiece(Lines& lines, std::uint32_t count)
    {
        constexpr float step = 0.002F; // Degrees.
        Lines::Piece piece{.first = static_cast<std::uint32_t>(lines.points.size()),
            .count = count,
            .southWest = {.latitude = 90, .longitude = 180},
            .northEast = {.latitude = -90, .longitude = -180}};
        for (std::uint32_t point = 0; point < count; ++point) {
            m_longitude += difference();
            m_latitude += difference();
            const LinePoint place{.latitude = step * static_cast<float>(m_latitude),
                .longitude = step * static_cast<float>(m_longitude)};
            piece.southWest = {.latitude = std::min(piece.southWest.latitude, place.latitude),
                .longitude = std::min(piece.southWest.longitude, place.longitude)};
            piece.northEast = {.latitude = std::max(piece.northEast.latitude, place.latitude),
                .longitude = std::max(piece.northEast.longitude, place.longitude)};
            lines.points.push_back(place);
        }
        lines.pieces.push_back(piece);
    }

    std::string_view m_bytes;
    std::size_t m_place = 0;
    int m_latitude = 0;
    int m_longitude = 0;
};

} // namespace

std::vector<City> cities()
{
    std::vector<City> list;
    readTable<6>(AtlasData::cities(), [&](const Row<6>& row) {
        list.push_back({.name = row[0],
            .countryCode = row[1],
            .areaCode = row[2],
            .coordinate = coordinateOf(row[3], row[4]),
            .thousands = numberOf<int>(row[5])});
    });
    return list;
}

std::vector<Airport> airports()
{
    std::vector<Airport> list;
    readTable<8>(AtlasData::airports(), [&](const Row<8>& row) {
        list.push_back({.icao = row[0],
            .iata = row[1],
            .name = row[2],
            .city = row[3],
            .countryCode = row[4],
            .coordinate = coordinateOf(row[5], row[6]),
            .isLarge = row[7] == "L"});
    });
    return list;
}

Earth earth()
{
    LineReader reader{AtlasData::earth()};
    Lines coast = reader.lines();
    return {.coast = std::move(coast), .borders = reader.lines()};
}

} // namespace skyvane::Atlas
