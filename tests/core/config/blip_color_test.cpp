#include "core/config/scope_palette.h"
#include "core/model/aircraft.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

constexpr Color amber{1.0, 0.85, 0.3, 1};

Color colorOf(const Aircraft& aircraft)
{
    return aircraft.blipColor(ScopePalette::standard());
}

TEST(BlipColor, anEmergencySquawkIsRedEvenForTheMilitary)
{
    const Color red = colorOf({.hex = "a", .squawk = "7700", .dbFlags = 1});
    EXPECT_GT(red.red, 0.9);
    EXPECT_LT(red.green, 0.4);
    EXPECT_LT(red.blue, 0.4);
    EXPECT_EQ(red.opacity, 1);
    EXPECT_EQ(colorOf({.hex = "a", .squawk = "7500"}), red);
}

TEST(BlipColor, anEmptyEmergencyWordIsAnEmergency)
{
    EXPECT_EQ(colorOf({.hex = "a", .emergency = ""}), colorOf({.hex = "a", .squawk = "7600"}));
}

TEST(BlipColor, theMilitaryIsAmberWhateverTheAccent)
{
    const Aircraft military{.hex = "a", .emergency = "none", .dbFlags = 3};
    EXPECT_EQ(colorOf(military), amber);
    EXPECT_EQ(military.blipColor(ScopePalette::fromHex("#ff3b30")), amber);
}

TEST(BlipColor, everyOtherAircraftTakesTheAccent)
{
    const Aircraft plain{.hex = "a", .squawk = "1200", .emergency = "none"};
    EXPECT_EQ(colorOf(plain), ScopePalette::standard().phosphor);
    EXPECT_EQ(plain.blipColor(ScopePalette::fromHex("0000ff")), (Color{0, 0, 1, 1}));
}

} // namespace
} // namespace skyvane
