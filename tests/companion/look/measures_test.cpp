#include "companion/look/measures.h"

#include "companion/look/preferences.h"
#include "platform/files/files.h"
#include "platform/pinned.h"
#include "platform/text/locale.h"
#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

const Aircraft airliner{
    .hex = "a", .altBaro = Altitude::feet(35000), .groundSpeed = 452.3, .baroRate = -1216};

} // namespace

TEST(Figures, areFeetAndKnotsMetricOrImperial)
{
    const Pinned<Locale> locale{{.numbers = "en_US", .times = "en_US", .timeZone = "UTC"}};
    EXPECT_EQ(Figures::altitude(airliner, Measures::aviation), "35,000 ft");
    EXPECT_EQ(Figures::altitude(airliner, Measures::metric), "10,668 m");
    EXPECT_EQ(Figures::altitude(airliner, Measures::imperial), "35,000 ft");
    EXPECT_EQ(Figures::speed(airliner, Measures::aviation), "452 kt");
    EXPECT_EQ(Figures::speed(airliner, Measures::metric), "838 km/h");
    EXPECT_EQ(Figures::speed(airliner, Measures::imperial), "520 mph");
    EXPECT_EQ(Figures::climb(airliner, Measures::aviation), "↓ 1,216 ft/min");
    EXPECT_EQ(Figures::climb(airliner, Measures::metric), "↓ 6.2 m/s");
    EXPECT_EQ(Figures::climb(airliner, Measures::imperial), "↓ 1,216 ft/min");
}

TEST(Figures, areWrittenAsTheUserReadsNumbers)
{
    const Pinned<Locale> locale{{.numbers = "de_DE", .times = "de_DE", .timeZone = "UTC"}};
    EXPECT_EQ(Figures::altitude(airliner, Measures::metric), "10.668 m");
    EXPECT_EQ(Figures::climb(airliner, Measures::metric), "↓ 6,2 m/s");
}

TEST(Figures, thatAreNotKnownAreEmpty)
{
    for (const Measures measures : {Measures::aviation, Measures::metric, Measures::imperial}) {
        const Aircraft unknown{.hex = "a"};
        EXPECT_EQ(Figures::altitude(unknown, measures), "");
        EXPECT_EQ(Figures::speed(unknown, measures), "");
        EXPECT_EQ(Figures::climb(unknown, measures), "");
        EXPECT_EQ(Figures::climb({.hex = "a", .baroRate = 63}, measures), "") << "level";
        EXPECT_EQ(Figures::altitude({.hex = "a", .altBaro = Altitude::ground()}, measures), "On ground");
    }
    EXPECT_EQ(Figures::speed({.hex = "a", .groundSpeed = 1e300}, Measures::metric), "");
    EXPECT_EQ(Figures::climb({.hex = "a", .baroRate = 64}, Measures::metric), "↑ 0.3 m/s");
}

TEST(Preferences, areKeptInTheirFile)
{
    const test::ScratchFolder scratch;
    const auto file = scratch.path() / "config/skyvane/companion.ini";
    {
        Preferences preferences{file};
        EXPECT_EQ(preferences.measures(), Measures::aviation);
        EXPECT_TRUE(preferences.isMapShown());
        int changes = 0;
        QObject::connect(&preferences, &Preferences::changed, [&] { ++changes; });
        preferences.choose(Measures::aviation);
        preferences.showMap(true);
        EXPECT_EQ(changes, 0);
        preferences.choose(Measures::metric);
        preferences.showMap(false);
        EXPECT_EQ(changes, 2);
    }
    const Preferences again{file};
    EXPECT_EQ(again.measures(), Measures::metric);
    EXPECT_FALSE(again.isMapShown());
}

TEST(Preferences, aWordThatNobodyKnowsIsTheStandard)
{
    const test::ScratchFolder scratch;
    const auto file = scratch.path() / "companion.ini";
    {
        Preferences preferences{file};
        preferences.choose(Measures::imperial);
    }
    std::string text = Files::read(file, 10000).value();
    text.replace(text.find("imperial"), 8,
        "parsecs"); // Of another length: a file of the same is not read anew at once.
    Files::writeAtomically(file, text);
    EXPECT_EQ(Preferences{file}.measures(), Measures::aviation);
}

} // namespace skyvane
