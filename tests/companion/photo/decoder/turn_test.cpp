#include "companion/photo/decoder/turn.h"
#include "tests/companion/photo/photo_bytes.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

using namespace std::string_literals;
namespace JPEG = test::JPEG;

const std::string littleEnd = "II*\0\x08\0\0\0"s;
const std::string bigEnd = "MM\0*\0\0\0\x08"s;

std::string withExif(const std::string& tiff)
{
    return JPEG::file(JPEG::segment(0xe0, "JFIF\0a"s) + JPEG::segment(0xe1, "Exif\0\0"s + tiff));
}

std::string entry(std::uint32_t tag, std::uint32_t value)
{
    return test::littleEndian(tag, 2) + "\x03\0\1\0\0\0"s + test::littleEndian(value, 2) + "\0\0"s;
}

/// A file whose camera was held so.
std::string heldAs(std::uint32_t orientation)
{
    return withExif(littleEnd + "\2\0"s + entry(0x010f, 6) + entry(0x0112, orientation));
}

/// Two rows of three pixels, each known by its red.
Pixels rows(const std::string& reds, std::uint32_t width)
{
    Pixels pixels{.width = width, .height = static_cast<std::uint32_t>(reds.size()) / width};
    for (std::size_t index = 0; index < reds.size(); ++index)
        pixels.list[index].red = static_cast<std::uint8_t>(reds[index]);
    return pixels;
}

} // namespace

TEST(PhotoTurn, aPictureIsTurnedAsEachOrientationSays)
{
    const Pixels picture = rows("abcdef", 3);
    const auto seen = [&](std::uint32_t orientation) { return turned(picture, turnOf(heldAs(orientation))); };
    EXPECT_EQ(seen(1), picture);
    EXPECT_EQ(seen(2), rows("cbafed", 3));
    EXPECT_EQ(seen(3), rows("fedcba", 3));
    EXPECT_EQ(seen(4), rows("defabc", 3));
    EXPECT_EQ(seen(5), rows("adbecf", 2));
    EXPECT_EQ(seen(6), rows("daebfc", 2));
    EXPECT_EQ(seen(7), rows("fcebda", 2));
    EXPECT_EQ(seen(8), rows("cfbead", 2));
}

TEST(PhotoTurn, bothOrdersOfBytesAreRead)
{
    EXPECT_TRUE(turnOf(heldAs(6)).isTransposed);
    EXPECT_TRUE(turnOf(withExif(bigEnd + "\0\1\x01\x12\0\3\0\0\0\1\0\6\0\0"s)).isTransposed);
}

TEST(PhotoTurn, whatMakesNoSenseTurnsNothing)
{
    for (const std::string& file : {""s, "\xff\xd8"s, JPEG::file(), heldAs(0), heldAs(9), withExif(""),
             withExif("II"), withExif("XX*\0\x08\0\0\0"s), withExif("II*\0\xff\xff\xff\xff"s),
             withExif(littleEnd), withExif(littleEnd + "\xff\xff"), withExif(littleEnd + "\1\0\x12"s),
             withExif(littleEnd + "\1\0"s + entry(0x0112, 6).substr(0, 11)),
             withExif(littleEnd + "\0\0"s + entry(0x0112, 6)),
             JPEG::start + JPEG::segment(0xe1, "http://ns.adobe.com/"), JPEG::start + "\xff\xe1\0\1"s,
             JPEG::start + JPEG::scan() + heldAs(6).substr(2)})
        EXPECT_EQ(turnOf(file), Turn{}) << testing::PrintToString(file);
}

} // namespace skyvane
