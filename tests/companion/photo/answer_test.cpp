#include "companion/photo/answer.h"
#include "tests/companion/photo/photo_bytes.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

std::string answer(std::uint32_t width, std::uint32_t height, std::size_t bytes)
{
    return test::littleEndian(width, 4) + test::littleEndian(height, 4) + std::string(bytes, 'x');
}

} // namespace

TEST(PhotoAnswer, whatIsWrittenIsRead)
{
    Pixels pixels{.width = 2, .height = 3};
    pixels.list[1] = {.red = 1, .green = 2, .blue = 3, .opacity = 4};
    pixels.list[5] = {.red = 255, .green = 254, .blue = 253, .opacity = 252};
    EXPECT_EQ(PhotoAnswer::decoded(PhotoAnswer::encoded(pixels)), pixels);
}

TEST(PhotoAnswer, itIsReadUpToThePixelsThatAreShown)
{
    const std::string largest = answer(1260, 840, std::size_t{1260} * 840 * 4);
    EXPECT_EQ(largest.size(), PhotoAnswer::largest);
    EXPECT_TRUE(PhotoAnswer::decoded(largest));
    EXPECT_FALSE(PhotoAnswer::decoded(answer(1261, 1, 1261 * 4)));
    EXPECT_FALSE(PhotoAnswer::decoded(answer(1, 841, 841 * 4)));
}

TEST(PhotoAnswer, anythingElseIsNone)
{
    EXPECT_FALSE(PhotoAnswer::decoded(""));
    EXPECT_FALSE(PhotoAnswer::decoded("nonsense"));
    EXPECT_FALSE(PhotoAnswer::decoded(std::string(8, '\0')));
    EXPECT_FALSE(PhotoAnswer::decoded(answer(0, 5, 0)));
    EXPECT_FALSE(PhotoAnswer::decoded(answer(5, 0, 0)));
    EXPECT_FALSE(PhotoAnswer::decoded(answer(2, 2, 15)));
    EXPECT_FALSE(PhotoAnswer::decoded(answer(2, 2, 17)));
    EXPECT_FALSE(PhotoAnswer::decoded(answer(0xffffffff, 0xffffffff, 4)));
    EXPECT_FALSE(PhotoAnswer::decoded(answer(2, 2, 16).substr(0, 7)));
}

} // namespace skyvane
