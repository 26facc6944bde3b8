#include "core/views/setup_prompt.h"

#include "ui/tree/build.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(SetupPrompt, showsAHouseAboveACenteredSentenceInTheStandardGreen)
{
    const Color dim{0.45, 1.0, 0.6, 0.55};
    const View expected = VStack{.spacing = 6}({
        symbol("house").font({.size = TextStyle::title3}).foreground(dim),
        text("Open Skyvane to set your home location")
            .font({.size = TextStyle::caption2})
            .foreground(dim)
            .align(HorizontalAlignment::center),
    });
    EXPECT_EQ(SetupPrompt{}.body(), expected);
}

TEST(SetupPrompt, takesThePaletteThatItIsGiven)
{
    const ScopePalette palette = ScopePalette::fromHex("#ff0000");
    const auto stack = std::get<VStack>(SetupPrompt{.palette = palette}.body().node);
    EXPECT_EQ(std::get<Text>(stack.children[1].node).color, (Color{1, 0, 0, 0.55}));
}

} // namespace
} // namespace skyvane
