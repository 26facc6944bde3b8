#include "companion/settings/accents.h"

#include "core/config/hex_color.h"
#include "core/model/aircraft.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace skyvane {

namespace {

using Triple = std::array<double, 3>;

Triple linear(const Color& color)
{
    const auto channel = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return {channel(color.red), channel(color.green), channel(color.blue)};
}

double luminance(const Color& color)
{
    const auto [red, green, blue] = linear(color);
    return 0.2126729 * red + 0.7151522 * green + 0.0721750 * blue;
}

/// CIE L*a*b* under daylight (D65).
Triple lab(const Color& color)
{
    const auto [red, green, blue] = linear(color);
    const auto f = [](double share) {
        return share > 216.0 / 24389 ? std::cbrt(share) : (24389.0 / 27 * share + 16) / 116;
    };
    const double x = f((0.4124564 * red + 0.3575761 * green + 0.1804375 * blue) / 0.95047);
    const double y = f(luminance(color));
    const double z = f((0.0193339 * red + 0.1191920 * green + 0.9503041 * blue) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

/// CIE 1976.
double difference(const Color& one, const Color& other)
{
    const auto [l1, a1, b1] = lab(one);
    const auto [l2, a2, b2] = lab(other);
    return std::hypot(l1 - l2, a1 - a2, b1 - b2);
}

Color blended(const Color& color, const Color& background)
{
    const auto channel
        = [&](double over, double under) { return over * color.opacity + under * (1 - color.opacity); };
    return {channel(color.red, background.red), channel(color.green, background.green),
        channel(color.blue, background.blue)};
}

double contrastOfSmallTexts(const ScopePalette& palette)
{
    return (luminance(blended(palette.dim(), palette.background)) + 0.05)
        / (luminance(palette.background) + 0.05);
}

} // namespace

TEST(Accents, emergencyRedAndMilitaryAmberStandOutOnEachThatIsOffered)
{
    constexpr double enough = 40;
    EXPECT_NEAR(difference({1, 1, 1}, {0, 0, 0}), 100, 0.01);
    EXPECT_NEAR(difference({1, 0, 0}, {0, 1, 0}), 170.6, 0.1);
    const Aircraft emergency{.hex = "4ca1e5", .squawk = "7700"};
    const Aircraft military{.hex = "ae01ce", .dbFlags = 1};
    for (const Accent& accent : offeredAccents()) {
        const ScopePalette palette = ScopePalette::fromHex(accent.hex);
        for (const Aircraft& aircraft : {emergency, military})
            EXPECT_GE(difference(aircraft.blipColor(palette), palette.phosphor), enough)
                << accent.name.toStdString() << ", " << aircraft.hex;
    }
}

TEST(Accents, smallTextsCanBeReadInEachThatIsOffered)
{
    for (const Accent& accent : offeredAccents()) {
        const ScopePalette palette = ScopePalette::fromHex(accent.hex);
        EXPECT_GE(contrastOfSmallTexts(palette), 4.5) << accent.name.toStdString();
        EXPECT_TRUE(isEasyToRead(palette)) << accent.name.toStdString();
    }
}

TEST(Accents, offeredOnesAreColoursAndNoTwoAreAlike)
{
    constexpr double toldApart = 15;
    const std::vector<Accent> offered = offeredAccents();
    ASSERT_GE(offered.size(), 2U);
    for (std::size_t one = 0; one < offered.size(); ++one) {
        EXPECT_EQ(!offered[one].hex, one == 0);
        EXPECT_TRUE(one == 0 || HexColor::components(*offered[one].hex)) << one;
        for (std::size_t other = 0; other < one; ++other)
            EXPECT_GE(difference(ScopePalette::fromHex(offered[one].hex).phosphor,
                          ScopePalette::fromHex(offered[other].hex).phosphor),
                toldApart)
                << offered[one].name.toStdString() << ", " << offered[other].name.toStdString();
    }
}

TEST(Accents, darkOnesAreHardToRead)
{
    for (const char* hex : {"#0000ff", "#800000", "#000000", "#ff5c5c", "#62a0ff"}) {
        EXPECT_FALSE(isEasyToRead(ScopePalette::fromHex(hex))) << hex;
        EXPECT_LT(contrastOfSmallTexts(ScopePalette::fromHex(hex)), 4.5) << hex;
    }
    EXPECT_TRUE(isEasyToRead(ScopePalette::fromHex("#ffffff")));
}

} // namespace skyvane
