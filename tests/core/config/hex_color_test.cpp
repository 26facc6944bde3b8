#include "core/config/hex_color.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

constexpr HexColor::Components green{.red = 0.2, .green = 1.0, .blue = 0.4};

TEST(HexColor, blanksAroundItAreIgnored)
{
    EXPECT_EQ(HexColor::components(" #33ff66 "), green);
    EXPECT_EQ(HexColor::components("\t\u00a0\u3000#33ff66\u2003"), green);
}

TEST(HexColor, theHashSignIsOptional)
{
    EXPECT_EQ(HexColor::components("33FF66"), green);
    EXPECT_EQ(HexColor::components("#33FF66"), green);
}

TEST(HexColor, everythingButSixDigitsIsNoColour)
{
    for (const char* text :
        {"#3F6", "#33FF66FF", "#GG0000", "", "#", "##33FF66", "##3FF66", "33 F66", "0x33FF", "#33FF6é"})
        EXPECT_FALSE(HexColor::components(text)) << text;
}

TEST(HexColor, aLineBreakAtTheEndIsNotIgnored)
{
    EXPECT_FALSE(HexColor::components("#33FF66\n"));
}

TEST(HexColor, aSignMayStandForADigit)
{
    EXPECT_EQ(HexColor::components("+12345"), HexColor::components("012345"));
    EXPECT_EQ(HexColor::components("-00000"), HexColor::components("000000"));
    EXPECT_FALSE(HexColor::components("-12345"));
    EXPECT_FALSE(HexColor::components("++1234"));
    EXPECT_FALSE(HexColor::components("+-1234"));
}

} // namespace
} // namespace skyvane
