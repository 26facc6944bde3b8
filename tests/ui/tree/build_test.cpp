#include "ui/tree/build.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace skyvane {
namespace {

View plain(const char* string)
{
    return text(string);
}

TEST(TreeBuilding, aTextHoldsNothingThatSteersWhatIsAroundIt)
{
    EXPECT_EQ(plain("\u202EUAL\x1b[31m\u009b1\r\ntwo"), plain("UAL [31m 1\ntwo"));
    EXPECT_EQ(shownText(std::string(1000, 'x')).size(), 255 + std::string{"…"}.size());
}

TEST(TreeBuilding, modifiersSetTheMembersOfATextAndOfASymbol)
{
    const Text expected{
        .string = "x",
        .font = {.size = 9, .weight = FontWeight::bold},
        .color = {1, 0, 0},
        .tracking = 1.5,
        .lineLimit = 1,
        .minimumScale = 0.6,
        .align = HorizontalAlignment::trailing,
    };
    const View view = text("x")
                          .font({.size = 9, .weight = FontWeight::bold})
                          .foreground({1, 0, 0})
                          .tracking(1.5)
                          .lineLimit(1)
                          .minimumScale(0.6)
                          .align(HorizontalAlignment::trailing);
    EXPECT_EQ(view, View{.node = expected});
    const View glyph = symbol("house").font({.size = TextStyle::title3}).foreground({0, 1, 0}).rotated(-90);
    const Symbol house{
        .name = "house", .font = {.size = TextStyle::title3}, .color = {0, 1, 0}, .rotation = -90};
    EXPECT_EQ(glyph, View{.node = house});
}

TEST(TreeBuilding, withoutModifiersTextsAndSymbolsAreBlackAndOfACaptionsSize)
{
    const Font caption{.size = TextStyle::caption};
    EXPECT_EQ(plain("x"), (View{.node = Text{.string = "x", .font = caption, .color = {0, 0, 0}}}));
    const View house = symbol("house");
    EXPECT_EQ(house, (View{.node = Symbol{.name = "house", .font = caption, .color = {0, 0, 0}}}));
}

TEST(TreeBuilding, aStackTakesSingleOptionalAndRepeatedChildrenInOrder)
{
    const std::optional<std::string> none;
    const std::optional<std::string> some{"c"};
    const auto make = [](const std::string& string) { return text(string); };
    const View stack = HStack{.spacing = 2}({
        plain("a"),
        std::vector<View>{plain("b1"), plain("b2")},
        ifPresent(none, make),
        ifPresent(some, make),
        when(false, [] { return text("d"); }),
        when(true, [] { return text("e"); }),
    });
    const View expected
        = HStack{.spacing = 2}({plain("a"), plain("b1"), plain("b2"), plain("c"), plain("e")});
    EXPECT_EQ(stack, expected);
}

TEST(TreeBuilding, anOverlayLeavesAbsentLayersOut)
{
    const View view = overlay(plain("base"),
        {
            layer(Alignment::top, std::nullopt),
            layer(Alignment::bottom, plain("low")),
        });
    const auto& node = std::get<Overlay>(view.node);
    ASSERT_EQ(node.layers.size(), 1U);
    EXPECT_EQ(node.layers[0], (Overlay::Layer{.align = Alignment::bottom, .child = {plain("low")}}));
}

TEST(TreeBuilding, aTreeHoldsSoMuchOfATextAsAnybodyIsShown)
{
    const View cut = text(std::string(255, 'x') + "…");
    EXPECT_EQ(plain(std::string(1'000'000, 'x').c_str()), cut);
    EXPECT_NE(plain(std::string(256, 'x').c_str()), cut);
}

TEST(TreeBuilding, anAbsurdIdentityIsCut)
{
    EXPECT_EQ(identified("a1b2c3", plain("a")).id, "a1b2c3");
    EXPECT_EQ(identified(std::string(10'000, 'a'), plain("a")).id, std::string(63, 'a') + "…");
}

TEST(TreeBuilding, viewsAreComparedByEverythingInThem)
{
    const View one = VStack{}({Frame{.maxHeight = 3}(plain("a")), canvas(2, {})});
    EXPECT_EQ(one, (VStack{}({Frame{.maxHeight = 3}(plain("a")), canvas(2, {})})));
    EXPECT_NE(one, (VStack{}({Frame{.maxHeight = 3}(plain("b")), canvas(2, {})})));
    EXPECT_NE(one, identified("id", one));
}

} // namespace
} // namespace skyvane
