#include "companion/photo/byte_reader.h"
#include "companion/photo/decoder/formats.h"

namespace skyvane::PhotoFile {

namespace {

using namespace std::string_view_literals;

constexpr unsigned char alphaFlag = 0x10;
constexpr unsigned char animationFlag = 0x02;
constexpr std::size_t fileHeader = 12; // "RIFF", the size of what follows it, "WEBP".

struct RIFFChunk {
    std::string_view type;
    std::string_view content;
};

/// Absent past the end. Of odd length, a chunk is followed by a byte of no meaning.
std::optional<RIFFChunk> takeRIFFChunk(ByteReader& reader)
{
    const auto type = reader.take(4);
    const auto length = reader.littleEndian(4);
    const auto content = length ? reader.take(*length) : std::nullopt;
    if (!content || (*length % 2 != 0 && !reader.take(1)))
        return std::nullopt;
    return RIFFChunk{.type = *type, .content = *content};
}

/// A key frame's width and height, 14 bits each.
bool isLossyWithinLimits(std::string_view content)
{
    constexpr std::uint32_t sizeBits = 0x3fff;
    ByteReader reader{content};
    const auto tag = reader.littleEndian(3);
    if (!tag || (*tag & 1) != 0 || reader.take(3) != "\x9d\x01\x2a"sv)
        return false;
    const auto width = reader.littleEndian(2);
    const auto height = reader.littleEndian(2);
    return width && height && isWithinLimits(*width & sizeBits, *height & sizeBits);
}

/// 14 bits each of one less than the width and the height.
bool isLosslessWithinLimits(std::string_view content)
{
    constexpr std::uint32_t sizeBits = 0x3fff;
    ByteReader reader{content};
    if (reader.take(1) != "\x2f"sv)
        return false;
    const auto sizes = reader.littleEndian(4);
    return sizes && isWithinLimits((*sizes & sizeBits) + 1, (*sizes >> 14 & sizeBits) + 1);
}

/// The header of the extended format as it is without profile, texts and animation; absent where it moves.
std::optional<std::string> plainHeader(std::string_view content)
{
    constexpr std::size_t size = 10;
    ByteReader reader{content};
    const auto flags = reader.littleEndian(4);
    const auto width = reader.littleEndian(3);
    const auto height = reader.littleEndian(3);
    if (!height || content.size() != size || (*flags & animationFlag) != 0
        || !isWithinLimits(*width + 1, *height + 1))
        return std::nullopt;
    std::string header{content};
    header[0] = static_cast<char>(*flags & alphaFlag);
    return header;
}

std::string sizeOf(std::size_t size)
{
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(size >> shift & 0xff);
    return bytes;
}

void append(std::string& file, std::string_view type, std::string_view content)
{
    file += type;
    file += sizeOf(content.size());
    file += content;
    if (content.size() % 2 != 0)
        file += '\0';
}

/// The chunks up to the picture itself, which is the last that is needed.
std::optional<std::string> keptChunks(ByteReader& reader)
{
    std::string kept;
    bool isFirst = true;
    while (const auto chunk = takeRIFFChunk(reader)) {
        if (chunk->type == "VP8X") {
            const auto header = isFirst ? plainHeader(chunk->content) : std::nullopt;
            if (!header)
                return std::nullopt;
            append(kept, chunk->type, *header);
        } else if (chunk->type == "VP8 " || chunk->type == "VP8L") {
            const bool isLossy = chunk->type == "VP8 ";
            if (!(isLossy ? isLossyWithinLimits(chunk->content) : isLosslessWithinLimits(chunk->content)))
                return std::nullopt;
            append(kept, chunk->type, chunk->content);
            return kept;
        } else if (isFirst) {
            return std::nullopt;
        } else if (chunk->type == "ALPH") {
            append(kept, chunk->type, chunk->content);
        }
        isFirst = false;
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> strippedWebP(std::string_view bytes)
{
    ByteReader reader{bytes.substr(0, fileHeader)};
    if (reader.take(4) != "RIFF"sv)
        return std::nullopt;
    const auto size = reader.littleEndian(4);
    if (reader.take(4) != "WEBP"sv || *size < 4 || *size - 4 > bytes.size() - fileHeader)
        return std::nullopt;
    ByteReader chunks{bytes.substr(fileHeader, *size - 4)};
    const auto kept = keptChunks(chunks);
    if (!kept)
        return std::nullopt;
    return std::string{"RIFF"} + sizeOf(kept->size() + 4) + "WEBP" + *kept;
}

} // namespace skyvane::PhotoFile
