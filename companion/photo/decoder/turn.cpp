#include "companion/photo/decoder/turn.h"

#include "companion/photo/byte_reader.h"
#include "companion/photo/decoder/scaled.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace skyvane {

namespace {

using namespace std::string_view_literals;

/// A TIFF's numbers, in either order of bytes.
class TIFFReader {
public:
    TIFFReader(std::string_view bytes, bool isLittleEndian) : m_reader(bytes), m_isLittle(isLittleEndian) { }

    std::optional<std::uint32_t> number(std::size_t bytes)
    {
        return m_isLittle ? m_reader.littleEndian(bytes) : m_reader.bigEndian(bytes);
    }

private:
    ByteReader m_reader;
    bool m_isLittle;
};

/// The Orientation in the first directory of a TIFF, 1 to 8; 1 without one.
std::uint32_t orientationOf(std::string_view tiff)
{
    constexpr std::size_t lengthOfEntry = 12;
    constexpr std::size_t placeOfValue = 8;
    constexpr std::uint32_t orientation = 0x0112;
    const bool isLittle = tiff.starts_with("II*\0"sv);
    if (!isLittle && !tiff.starts_with("MM\0*"sv))
        return 1;
    const auto directory = TIFFReader{tiff.substr(4), isLittle}.number(4);
    if (!directory || *directory > tiff.size())
        return 1;
    std::string_view entries = tiff.substr(*directory);
    const auto count = TIFFReader{entries, isLittle}.number(2);
    entries.remove_prefix(count ? 2 : entries.size());
    for (std::uint32_t index = 0; index < count.value_or(0) && entries.size() >= lengthOfEntry; ++index) {
        if (TIFFReader{entries, isLittle}.number(2) == orientation)
            return *TIFFReader{entries.substr(placeOfValue), isLittle}.number(2);
        entries.remove_prefix(lengthOfEntry);
    }
    return 1;
}

/// The content of the Exif segment before the first scan; empty without one.
std::string_view exifOf(std::string_view jpeg)
{
    constexpr auto marker = "\xff\xe1"sv;
    constexpr auto name = "Exif\0\0"sv;
    constexpr std::size_t lengthSize = 2;
    ByteReader reader{jpeg};
    reader.take(lengthSize);
    while (const auto found = reader.take(marker.size())) {
        const auto length = reader.bigEndian(lengthSize);
        const auto content
            = length && *length >= lengthSize ? reader.take(*length - lengthSize) : std::nullopt;
        if (!content || *found == "\xff\xda"sv)
            return {};
        if (*found == marker && content->starts_with(name))
            return content->substr(name.size());
    }
    return {};
}

Pixels mirrored(Pixels pixels)
{
    for (auto row = pixels.list.begin(); row != pixels.list.end(); row += pixels.width)
        std::reverse(row, row + pixels.width);
    return pixels;
}

/// Reversed as a whole it is upside down, and its rows are mirrored.
Pixels flipped(Pixels pixels)
{
    std::ranges::reverse(pixels.list);
    return mirrored(std::move(pixels));
}

} // namespace

Turn turnOf(std::string_view jpeg)
{
    switch (orientationOf(exifOf(jpeg))) {
    case 2:
        return {.isMirrored = true};
    case 3:
        return {.isMirrored = true, .isFlipped = true};
    case 4:
        return {.isFlipped = true};
    case 5:
        return {.isTransposed = true};
    case 6:
        return {.isTransposed = true, .isMirrored = true};
    case 7:
        return {.isTransposed = true, .isMirrored = true, .isFlipped = true};
    case 8:
        return {.isTransposed = true, .isFlipped = true};
    default:
        return {};
    }
}

Pixels turned(Pixels pixels, const Turn& turn)
{
    if (turn.isTransposed)
        pixels = transposed(pixels);
    if (turn.isMirrored)
        pixels = mirrored(std::move(pixels));
    return turn.isFlipped ? flipped(std::move(pixels)) : pixels;
}

} // namespace skyvane
