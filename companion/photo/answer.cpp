#include "companion/photo/answer.h"

#include "companion/photo/byte_reader.h"

#include <cstring>

namespace skyvane::PhotoAnswer {

namespace {

constexpr std::size_t bytesOfSide = 4;

void appendSide(std::string& bytes, std::uint32_t side)
{
    for (std::size_t index = 0; index < bytesOfSide; ++index)
        bytes += static_cast<char>(side >> 8 * index & 0xff);
}

} // namespace

std::string encoded(const Pixels& pixels)
{
    std::string bytes;
    appendSide(bytes, pixels.width);
    appendSide(bytes, pixels.height);
    bytes.append(reinterpret_cast<const char*>(pixels.list.data()), pixels.list.size() * sizeof(Pixel));
    return bytes;
}

std::optional<Pixels> decoded(std::string_view bytes)
{
    ByteReader reader{bytes};
    const auto width = reader.littleEndian(bytesOfSide);
    const auto height = reader.littleEndian(bytesOfSide);
    if (!height || *width == 0 || *height == 0 || *width > widest || *height > highest)
        return std::nullopt;
    const std::string_view rest = reader.rest();
    if (rest.size() != sizeof(Pixel) * *width * *height)
        return std::nullopt;
    Pixels pixels{.width = *width, .height = *height};
    std::memcpy(pixels.list.data(), rest.data(), rest.size());
    return pixels;
}

} // namespace skyvane::PhotoAnswer
