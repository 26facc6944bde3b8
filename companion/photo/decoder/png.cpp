#include "companion/photo/byte_reader.h"
#include "companion/photo/decoder/formats.h"

#include <algorithm>
#include <array>

namespace skyvane::PhotoFile {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view signature = "\x89PNG\r\n\x1a\n"sv;

bool isOfPixels(std::string_view type)
{
    constexpr std::array kept{"IHDR"sv, "PLTE"sv, "tRNS"sv, "IDAT"sv, "IEND"sv};
    return std::ranges::find(kept, type) != kept.end();
}

/// A reader that does not know such a chunk cannot show the picture; marked so in the name's first letter.
bool isCritical(std::string_view type)
{
    constexpr unsigned char lowerCase = 0x20;
    return (static_cast<unsigned char>(type.front()) & lowerCase) == 0;
}

/// Absent past the end of the file. The check sum is the decoder's to look at.
struct PNGChunk {
    std::string_view type;
    std::string_view content;
    std::string_view whole;
};

std::optional<PNGChunk> takePNGChunk(ByteReader& reader)
{
    constexpr std::size_t frame = 12; // Length, type and check sum.
    constexpr std::size_t typeSize = 4;
    const std::string_view start = reader.rest();
    const auto length = reader.bigEndian(4);
    if (!length || !reader.take(typeSize) || !reader.take(*length) || !reader.take(4))
        return std::nullopt;
    return PNGChunk{
        .type = start.substr(4, typeSize),
        .content = start.substr(4 + typeSize, *length),
        .whole = start.substr(0, frame + *length),
    };
}

bool isHeader(const PNGChunk& chunk)
{
    ByteReader content{chunk.content};
    const auto width = content.bigEndian(4);
    const auto height = content.bigEndian(4);
    return chunk.type == "IHDR" && width && height && isWithinLimits(*width, *height);
}

} // namespace

std::optional<std::string> strippedPNG(std::string_view bytes)
{
    ByteReader reader{bytes};
    if (reader.take(signature.size()) != signature)
        return std::nullopt;
    std::string kept{signature};
    while (const auto chunk = takePNGChunk(reader)) {
        const bool isFirst = kept.size() == signature.size();
        if (isFirst != (chunk->type == "IHDR") || (isFirst && !isHeader(*chunk)))
            return std::nullopt;
        if (isOfPixels(chunk->type))
            kept += chunk->whole;
        else if (isCritical(chunk->type))
            return std::nullopt;
        if (chunk->type == "IEND")
            return kept;
    }
    return std::nullopt;
}

} // namespace skyvane::PhotoFile
