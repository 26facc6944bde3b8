#include "platform/files/files.h"
#include "tests/ui/layout/even_measurer.h"
#include "tests/ui/layout/infinity.h"
#include "ui/layout/dump.h"
#include "ui/layout/layout.h"
#include "ui/tree/build.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace skyvane {

namespace {

constexpr Color green{0.2, 1, 0.4};

View row(std::string name, std::string distance, std::string altitude)
{
    const auto figure = [](std::string string) { return text(std::move(string)).font({.size = 5}); };
    return HStack{.spacing = 2}({
        symbol("airplane").font({.size = 6}).rotated(45).foreground(green),
        text(std::move(name)).font({.size = 10, .weight = FontWeight::bold}).lineLimit(1),
        spacer(4),
        figure(std::move(distance)),
        figure(std::move(altitude)),
    });
}

View board()
{
    const View scope = canvas(1,
        {
            CanvasCircle{
                .center = {0.5, 0.5},
                .diameter = FractionOfWidth{1},
                .paint = Stroke{.color = green.withOpacity(0.5), .width = 1},
            },
        });
    const View list = VStack{.spacing = 2, .align = HorizontalAlignment::leading}({
        text("2 AIRCRAFT").font({.size = 5, .design = FontDesign::monospaced}).tracking(1),
        link(URL::parse("skyvane://aircraft/4ca7b5").value(), row("RYR81", "4 nm", "12,500ft")),
        row("Speedbird", "11 nm", "FL350"),
        spacer(),
        text("as of 10:42").font({.size = 5}).minimumScale(0.5).lineLimit(1),
    });
    return HStack{.spacing = 6}({scope, Frame{.maxWidth = infinity, .align = Alignment::leading}(list)});
}

std::string dumpsAtManyWidths()
{
    std::string text;
    for (const double width : {70, 80, 90, 100, 110, 120, 130, 140, 160, 180, 220, 300})
        text += dump(layout(board(), {.width = width, .height = 60}, test::EvenMeasurer{})) + "\n";
    return text;
}

} // namespace

TEST(LayoutDump, aBoardAtManyWidths)
{
    constexpr std::size_t enough = 1 << 16;
    const std::filesystem::path expected{SKYVANE_LAYOUT_FIXTURES "/board.out.txt"};
    EXPECT_EQ(dumpsAtManyWidths(), Files::read(expected, enough).value_or("no " + expected.string()));
}

} // namespace skyvane
