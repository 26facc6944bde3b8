#include "companion/photo/decoder/scaled.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

/// Of pixels that become one.
class Mean {
public:
    void add(const Pixel& pixel, float share)
    {
        const float weight = share * static_cast<float>(pixel.opacity);
        m_red += weight * static_cast<float>(pixel.red);
        m_green += weight * static_cast<float>(pixel.green);
        m_blue += weight * static_cast<float>(pixel.blue);
        m_weight += weight;
        m_share += share;
    }

    Pixel pixel() const
    {
        if (m_weight <= 0)
            return {};
        return {
            .red = byte(m_red / m_weight),
            .green = byte(m_green / m_weight),
            .blue = byte(m_blue / m_weight),
            .opacity = byte(m_weight / m_share),
        };
    }

private:
    static std::uint8_t byte(float value)
    {
        constexpr float largest = 255;
        return static_cast<std::uint8_t>(std::min(value, largest) + 0.5F);
    }

    float m_red = 0;
    float m_green = 0;
    float m_blue = 0;
    float m_weight = 0;
    float m_share = 0;
};

/// A row with fewer pixels, each a mean over the stretch that it covers.
void narrow(const Pixel* row, std::uint32_t width, Pixel* narrowed, std::uint32_t newWidth)
{
    const double step = static_cast<double>(width) / newWidth;
    for (std::uint32_t index = 0; index < newWidth; ++index) {
        const double start = index * step;
        const double end = std::min<double>(start + step, width);
        Mean mean;
        for (auto at = static_cast<std::uint32_t>(start); at < width && at < end; ++at)
            mean.add(
                row[at], static_cast<float>(std::min<double>(at + 1.0, end) - std::max<double>(at, start)));
        narrowed[index] = mean.pixel();
    }
}

Pixels narrowed(const Pixels& pixels, std::uint32_t width)
{
    Pixels result{.width = width, .height = pixels.height};
    for (std::size_t row = 0; row < pixels.height; ++row)
        narrow(
            pixels.list.data() + row * pixels.width, pixels.width, result.list.data() + row * width, width);
    return result;
}

/// Where one of a proportion that is kept ends.
std::uint32_t proportional(std::uint32_t side, std::uint32_t to, std::uint32_t of)
{
    return static_cast<std::uint32_t>(std::lround(static_cast<double>(side) * to / of));
}

} // namespace

Extent covering(const Extent& extent, const Extent& place)
{
    const bool isWider
        = std::uint64_t{extent.width} * place.height > std::uint64_t{extent.height} * place.width;
    const Extent cover = isWider
        ? Extent{.width = proportional(extent.width, place.height, extent.height), .height = place.height}
        : Extent{.width = place.width, .height = proportional(extent.height, place.width, extent.width)};
    return cover.width < extent.width && cover.height <= extent.height ? cover : extent;
}

Pixels transposed(const Pixels& pixels)
{
    Pixels result{.width = pixels.height, .height = pixels.width};
    for (std::size_t y = 0; y < pixels.height; ++y) {
        for (std::size_t x = 0; x < pixels.width; ++x)
            result.list[x * result.width + y] = pixels.list[y * pixels.width + x];
    }
    return result;
}

Pixels scaledDown(Pixels pixels, const Extent& extent)
{
    if (extent == Extent{.width = pixels.width, .height = pixels.height})
        return pixels;
    return transposed(narrowed(transposed(narrowed(pixels, extent.width)), extent.height));
}

Pixels middleOf(const Pixels& pixels, const Extent& most)
{
    Pixels middle{
        .width = std::min(pixels.width, most.width), .height = std::min(pixels.height, most.height)};
    const std::size_t left = (pixels.width - middle.width) / 2;
    const std::size_t top = (pixels.height - middle.height) / 2;
    for (std::size_t row = 0; row < middle.height; ++row)
        std::copy_n(pixels.list.data() + (top + row) * pixels.width + left, middle.width,
            middle.list.data() + row * middle.width);
    return middle;
}

} // namespace skyvane
