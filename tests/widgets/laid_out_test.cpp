#include "core/views/sample_entry.h"
#include "platform/files/files.h"
#include "platform/pinned.h"
#include "tests/core/sample_sky.h"
#include "tests/ui/layout/even_measurer.h"
#include "tests/widgets/layout_check.h"
#include "ui/layout/dump.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace skyvane {
namespace {

using test::LaidOut;
using test::laidOut;
using testing::IsEmpty;

SkyEntry withoutHome()
{
    SkyEntry entry = test::skyOf(0);
    entry.home.reset();
    return entry;
}

class LaidOutWidgets : public testing::Test {
    Pinned<Locale> m_locale{test::english()};
    Pinned<Date> m_clock{test::morning};
};

TEST_F(LaidOutWidgets, standWhereTheyShould)
{
    const std::vector<std::pair<std::string, SkyEntry>> situations{
        {"sample", sampleEntry()},
        {"quiet sky", test::skyOf(0)},
        {"no home", withoutHome()},
    };
    std::string all;
    for (const auto& [situation, entry] : situations) {
        for (const LaidOut& one : laidOut(entry))
            all += "== " + one.title + ", " + situation + "\n" + dump(one.list);
    }
    const std::filesystem::path expected = SKYVANE_LAID_OUT;
    EXPECT_EQ(all, Files::read(expected, 100000)) << "should be in " << expected;
}

TEST_F(LaidOutWidgets, fitWhateverTheSkyHolds)
{
    std::vector<SkyEntry> skies;
    for (const std::size_t count : {0U, 1U, 5U, 41U, 700U})
        skies.push_back(test::skyOf(count));
    for (const char* unit : {"nm", "km", "mi", "NM"}) {
        SkyEntry entry = test::skyOf(5);
        entry.unit = unit;
        entry.aircraft[0].distanceNM = 249.9;
        entry.aircraft[0].altBaro = Altitude::feet(17999);
        entry.aircraft[1].altBaro = Altitude::feet(-1500);
        skies.push_back(entry);
    }
    for (const double radius : {12.9, 1000.0}) {
        SkyEntry entry = test::skyOf(0);
        entry.radiusNM = radius;
        skies.push_back(entry);
    }
    for (const SkyEntry& entry : skies) {
        for (const LaidOut& one : laidOut(entry))
            EXPECT_THAT(test::layoutProblems(one.list, test::EvenMeasurer{}), IsEmpty())
                << one.title << ", " << entry.aircraft.size();
    }
}

TEST_F(LaidOutWidgets, fitWhateverACallsignHolds)
{
    std::string flyingCircus;
    for (int act = 0; act < 20; ++act)
        flyingCircus += "✈️👩‍✈️";
    const std::vector<std::string> callsigns{
        "X",
        std::string(40, 'W'),
        "   ",
        "طيران الشرق ١٢٣",
        flyingCircus,
    };
    for (const std::string& callsign : callsigns) {
        SkyEntry entry = test::skyOf(5);
        for (Aircraft& aircraft : entry.aircraft) {
            aircraft.flight = callsign;
            aircraft.altBaro = Altitude::feet(17999);
            aircraft.distanceNM = 249.9;
        }
        entry.unit = "km";
        for (const LaidOut& one : laidOut(entry)) {
            EXPECT_THAT(test::layoutProblems(one.list, test::EvenMeasurer{}), IsEmpty())
                << one.title << ", " << callsign;
            if (one.title != "Sky Radar, small") {
                EXPECT_THAT(test::textsOf(one.list), testing::Contains(testing::HasSubstr("462.8")))
                    << one.title;
                EXPECT_THAT(test::textsOf(one.list), testing::Contains(testing::HasSubstr("17,999")))
                    << one.title;
            }
        }
    }
}

TEST_F(LaidOutWidgets, aLongCallsignShrinksToSixTenthsBeforeItIsCut)
{
    const auto nameOf = [](const std::string& callsign) {
        SkyEntry entry = test::skyOf(1);
        entry.aircraft[0].flight = callsign;
        const DisplayList list = laidOut(entry).front().list;
        for (const DisplayItem& item : list.items) {
            const auto* line = std::get_if<TextLine>(&item);
            if (line != nullptr && line->face.size > 10)
                return *line;
        }
        return TextLine{};
    };
    EXPECT_EQ(nameOf("ASA512").face.size, 19);
    const TextLine shrunk = nameOf(std::string(18, 'W'));
    EXPECT_EQ(shrunk.string, std::string(18, 'W'));
    EXPECT_LT(shrunk.face.size, 19);
    const TextLine cut = nameOf(std::string(40, 'W'));
    EXPECT_NEAR(cut.face.size, 19 * 0.6, 1e-6);
    EXPECT_TRUE(cut.string.ends_with("…"));
}

TEST_F(LaidOutWidgets, theSetupSentenceWrapsAndLosesNothing)
{
    for (const LaidOut& one : laidOut(withoutHome())) {
        std::string sentence;
        for (const std::string& line : test::textsOf(one.list))
            sentence += (sentence.empty() ? "" : " ") + line;
        EXPECT_EQ(sentence, "Open Skyvane to set your home location") << one.title;
    }
}

} // namespace
} // namespace skyvane
