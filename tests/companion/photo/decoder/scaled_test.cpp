#include "companion/photo/decoder/scaled.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

constexpr Extent place{.width = 1260, .height = 840};
constexpr Pixel red{.red = 200, .green = 0, .blue = 0, .opacity = 255};
constexpr Pixel blue{.red = 0, .green = 0, .blue = 100, .opacity = 255};

Extent cover(std::uint32_t width, std::uint32_t height)
{
    return covering({.width = width, .height = height}, place);
}

Pixels row(std::vector<Pixel> list)
{
    const auto width = static_cast<std::uint32_t>(list.size());
    return {.width = width, .height = 1, .list = std::move(list)};
}

} // namespace

TEST(ScaledPhoto, aPlaceIsCoveredByTheLeastExtentOfTheSameShape)
{
    EXPECT_EQ(cover(2520, 1680), place);
    EXPECT_EQ(cover(4096, 2000), (Extent{.width = 1720, .height = 840}));
    EXPECT_EQ(cover(2000, 2800), (Extent{.width = 1260, .height = 1764}));
}

TEST(ScaledPhoto, whatIsSmallerInEitherSideIsLeftAsItIs)
{
    for (const Extent extent : {place, Extent{.width = 420, .height = 280},
             Extent{.width = 4096, .height = 30}, Extent{.width = 30, .height = 4096},
             Extent{.width = 4096, .height = 840}, Extent{.width = 1, .height = 1}})
        EXPECT_EQ(covering(extent, place), extent) << extent.width;
}

TEST(ScaledPhoto, aPixelIsTheMeanOfThoseItStandsFor)
{
    const Pixel both{.red = 100, .green = 0, .blue = 50, .opacity = 255};
    EXPECT_EQ(scaledDown(row({red, blue, blue, blue}), {.width = 2, .height = 1}), row({both, blue}));
    EXPECT_EQ(scaledDown(transposed(row({red, blue, blue, blue})), {.width = 1, .height = 2}),
        transposed(row({both, blue})));
}

TEST(ScaledPhoto, aPixelBetweenTwoCountsForEachByItsShare)
{
    const Pixel mostlyRed{.red = 133, .green = 0, .blue = 33, .opacity = 255};
    EXPECT_EQ(scaledDown(row({red, blue, red}), {.width = 2, .height = 1}), row({mostlyRed, mostlyRed}));
}

TEST(ScaledPhoto, whatCannotBeSeenColoursNothing)
{
    constexpr Pixel unseenBlue{.red = 0, .green = 0, .blue = 255, .opacity = 0};
    constexpr Pixel faintRed{.red = 200, .green = 0, .blue = 0, .opacity = 128};
    EXPECT_EQ(scaledDown(row({red, unseenBlue}), {.width = 1, .height = 1}), row({faintRed}));
    EXPECT_EQ(scaledDown(row({unseenBlue, unseenBlue}), {.width = 1, .height = 1}), row({Pixel{}}));
}

TEST(ScaledPhoto, theSameExtentIsTheSamePicture)
{
    const Pixels pixels = row({red, blue, Pixel{.blue = 9}});
    EXPECT_EQ(scaledDown(pixels, {.width = 3, .height = 1}), pixels);
}

TEST(ScaledPhoto, theMiddleIsWhatIsKept)
{
    const Pixels five = row({red, red, blue, red, red});
    EXPECT_EQ(middleOf(five, {.width = 1, .height = 9}), row({blue}));
    EXPECT_EQ(middleOf(transposed(five), {.width = 9, .height = 1}), row({blue}));
    EXPECT_EQ(middleOf(five, {.width = 9, .height = 9}), five);
}

} // namespace skyvane
