#include "companion/photo/decoder/libraries.h"

#include "companion/photo/limits.h"

#include <png.h>
#include <turbojpeg.h>
#include <webp/decode.h>

#include <algorithm>
#include <memory>
#include <span>

namespace skyvane::PhotoLibrary {

namespace {

const std::uint8_t* bytesOf(std::string_view file)
{
    return reinterpret_cast<const std::uint8_t*>(file.data());
}

bool isWithinLimits(std::uint32_t width, std::uint32_t height)
{
    return width > 0 && height > 0 && width <= PhotoFile::longestSide && height <= PhotoFile::longestSide;
}

/// The least that the library can scale an extent down to without coming below what covers the place.
Extent leastCovering(const Extent& extent, const Extent& place)
{
    const Extent needed = covering(extent, place);
    int count = 0;
    const tjscalingfactor* const first = tjGetScalingFactors(&count);
    Extent least = extent;
    for (const tjscalingfactor& factor : std::span{first, static_cast<std::size_t>(std::max(count, 0))}) {
        const auto scaled = [&](std::uint32_t side) {
            return static_cast<std::uint32_t>(TJSCALED(static_cast<int>(side), factor));
        };
        const Extent tried{.width = scaled(extent.width), .height = scaled(extent.height)};
        if (tried.width >= needed.width && tried.height >= needed.height && tried.width < least.width)
            least = tried;
    }
    return least;
}

/// From cyan, magenta, yellow and black, of which files hold what is left without them.
void mixInks(Pixels& pixels)
{
    constexpr int full = 255;
    for (Pixel& pixel : pixels.list) {
        const auto under = [black = pixel.opacity](std::uint8_t light) {
            return static_cast<std::uint8_t>(light * black / full);
        };
        pixel = {
            .red = under(pixel.red),
            .green = under(pixel.green),
            .blue = under(pixel.blue),
            .opacity = full,
        };
    }
}

} // namespace

std::optional<Pixels> decodedJPEG(std::string_view file, const Extent& place)
{
    const std::unique_ptr<void, decltype(&tjDestroy)> decoder{tjInitDecompress(), &tjDestroy};
    int width = 0;
    int height = 0;
    int ignored = 0;
    int colors = 0;
    if (decoder == nullptr
        || tjDecompressHeader3(decoder.get(), bytesOf(file), file.size(), &width, &height, &ignored, &colors)
            != 0
        || width < 0 || height < 0)
        return std::nullopt;
    const Extent extent{
        .width = static_cast<std::uint32_t>(width), .height = static_cast<std::uint32_t>(height)};
    if (!isWithinLimits(extent.width, extent.height))
        return std::nullopt;
    const bool isOfInks = colors == TJCS_CMYK || colors == TJCS_YCCK;
    const Extent scaled = leastCovering(extent, place);
    Pixels pixels{.width = scaled.width, .height = scaled.height};
    if (tjDecompress2(decoder.get(), bytesOf(file), file.size(),
            reinterpret_cast<unsigned char*>(pixels.list.data()), static_cast<int>(scaled.width), 0,
            static_cast<int>(scaled.height), isOfInks ? TJPF_CMYK : TJPF_RGBA, TJFLAG_STOPONWARNING)
        != 0)
        return std::nullopt;
    if (isOfInks)
        mixInks(pixels);
    return pixels;
}

std::optional<Pixels> decodedPNG(std::string_view file)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    const std::unique_ptr<png_image, decltype(&png_image_free)> decoder{&image, &png_image_free};
    if (png_image_begin_read_from_memory(&image, file.data(), file.size()) == 0
        || !isWithinLimits(image.width, image.height))
        return std::nullopt;
    image.format = PNG_FORMAT_RGBA;
    image.flags |= PNG_IMAGE_FLAG_16BIT_sRGB; // Whatever said otherwise has been left out of the file.
    Pixels pixels{.width = image.width, .height = image.height};
    const bool isWhole = png_image_finish_read(&image, nullptr, pixels.list.data(), 0, nullptr) != 0;
    return isWhole ? std::optional{std::move(pixels)} : std::nullopt;
}

std::optional<Pixels> decodedWebP(std::string_view file)
{
    int width = 0;
    int height = 0;
    if (WebPGetInfo(bytesOf(file), file.size(), &width, &height) == 0 || width < 0 || height < 0
        || !isWithinLimits(static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height)))
        return std::nullopt;
    Pixels pixels{.width = static_cast<std::uint32_t>(width), .height = static_cast<std::uint32_t>(height)};
    const bool isWhole
        = WebPDecodeRGBAInto(bytesOf(file), file.size(), reinterpret_cast<std::uint8_t*>(pixels.list.data()),
              pixels.list.size() * sizeof(Pixel), width * static_cast<int>(sizeof(Pixel)))
        != nullptr;
    return isWhole ? std::optional{std::move(pixels)} : std::nullopt;
}

} // namespace skyvane::PhotoLibrary
