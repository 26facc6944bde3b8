#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace skyvane::test {

using namespace std::string_literals;

inline std::string bigEndian(std::uint32_t number, int count)
{
    std::string bytes;
    for (int index = count - 1; index >= 0; --index)
        bytes += static_cast<char>(number >> 8 * index & 0xff);
    return bytes;
}

inline std::string littleEndian(std::uint32_t number, int count)
{
    std::string bytes;
    for (int index = 0; index < count; ++index)
        bytes += static_cast<char>(number >> 8 * index & 0xff);
    return bytes;
}

/// Files in the shape of their format, whose pixels nobody could decode.
namespace PNG {

inline const std::string signature = "\x89PNG\r\n\x1a\n";

/// Its check sum is none.
inline std::string chunk(const std::string& type, const std::string& content)
{
    return bigEndian(static_cast<std::uint32_t>(content.size()), 4) + type + content + "\x01\x02\x03\x04";
}

inline std::string header(std::uint32_t width, std::uint32_t height)
{
    return chunk("IHDR", bigEndian(width, 4) + bigEndian(height, 4) + "\x08\x02\0\0\0"s);
}

/// With these chunks between the header and the pixels.
inline std::string file(const std::string& chunks = {}, std::uint32_t width = 3, std::uint32_t height = 2)
{
    return signature + header(width, height) + chunks + chunk("IDAT", "pixels") + chunk("IEND", {});
}

} // namespace PNG

namespace JPEG {

inline const std::string start = "\xff\xd8";
inline const std::string end = "\xff\xd9";

inline std::string segment(unsigned char marker, const std::string& content)
{
    return "\xff"s + static_cast<char>(marker) + bigEndian(static_cast<std::uint32_t>(content.size()) + 2, 2)
        + content;
}

inline std::string frame(std::uint32_t width, std::uint32_t height, unsigned char marker = 0xc2)
{
    return segment(marker, "\x08"s + bigEndian(height, 2) + bigEndian(width, 2) + "\x01\x01\x11\0"s);
}

inline std::string scan(const std::string& data = "\x12\xff\0\x34\xff\xd0\x56"s)
{
    return segment(0xda, "\x01\x01\0\0\x3f\0"s) + data;
}

/// With these segments before the frame, and so many scans after it.
inline std::string file(const std::string& segments = {}, int scans = 1)
{
    std::string bytes = start + segments + frame(3, 2);
    for (int count = 0; count < scans; ++count)
        bytes += scan();
    return bytes + end;
}

} // namespace JPEG

namespace WebP {

inline std::string chunk(const std::string& type, const std::string& content)
{
    return type + littleEndian(static_cast<std::uint32_t>(content.size()), 4) + content
        + std::string(content.size() % 2, '\0');
}

inline std::string lossy(std::uint32_t width, std::uint32_t height)
{
    return chunk(
        "VP8 ", "\x10\0\0\x9d\x01\x2a"s + littleEndian(width, 2) + littleEndian(height, 2) + "pixels");
}

inline std::string lossless(std::uint32_t width, std::uint32_t height)
{
    return chunk("VP8L", "\x2f" + littleEndian((width - 1) | (height - 1) << 14, 4) + "pixels");
}

inline std::string extended(unsigned char flags, std::uint32_t width, std::uint32_t height)
{
    return chunk("VP8X",
        std::string(1, static_cast<char>(flags)) + "\0\0\0"s + littleEndian(width - 1, 3)
            + littleEndian(height - 1, 3));
}

inline std::string file(const std::string& chunks)
{
    return "RIFF" + littleEndian(static_cast<std::uint32_t>(chunks.size()) + 4, 4) + "WEBP" + chunks;
}

} // namespace WebP

} // namespace skyvane::test
