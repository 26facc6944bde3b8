#include "core/config/scope_palette.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(ScopePalette, theStandardOneIsGreen)
{
    const ScopePalette& palette = ScopePalette::standard();
    EXPECT_EQ(palette.phosphor, (Color{0.45, 1.0, 0.6, 1}));
    EXPECT_DOUBLE_EQ(palette.background.red, 0.0405);
    EXPECT_DOUBLE_EQ(palette.background.green, 0.09);
    EXPECT_DOUBLE_EQ(palette.background.blue, 0.054);
    EXPECT_EQ(palette.background.opacity, 1);
}

TEST(ScopePalette, takesTheAccentAndDarkensItForTheBackground)
{
    const ScopePalette palette = ScopePalette::fromHex("#33ff66");
    EXPECT_EQ(palette.phosphor, (Color{0.2, 1.0, 0.4, 1}));
    EXPECT_EQ(palette.background, (Color{0.2 * 0.09, 0.09, 0.4 * 0.09, 1}));
}

TEST(ScopePalette, aTextThatIsNoColourGivesTheStandardOne)
{
    for (const char* text : {"#3F6", "#33FF66FF", "#GG0000", "", "#"})
        EXPECT_EQ(ScopePalette::fromHex(text), ScopePalette::standard()) << text;
    EXPECT_EQ(ScopePalette::fromHex(std::nullopt), ScopePalette::standard());
}

TEST(ScopePalette, dimAndFaintAreThePhosphorAtLowerOpacity)
{
    const ScopePalette palette = ScopePalette::fromHex("#ffffff");
    EXPECT_EQ(palette.dim(), (Color{1, 1, 1, 0.55}));
    EXPECT_EQ(palette.faint(), (Color{1, 1, 1, 0.22}));
}

} // namespace
} // namespace skyvane
