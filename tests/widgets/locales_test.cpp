#include "platform/files/files.h"
#include "platform/pinned.h"
#include "platform/text/locale.h"
#include "tests/core/sample_sky.h"
#include "tests/ui/layout/even_measurer.h"
#include "tests/widgets/layout_check.h"
#include "ui/layout/dump.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unicode/locid.h>
#include <unicode/utypes.h>

#include <chrono>
#include <filesystem>
#include <sstream>
#include <string>
#include <string_view>

namespace skyvane {
namespace {

/// A country's ways for all that asks for the current locale, the Unicode library's own default among it.
class InCountry {
public:
    explicit InCountry(const char* name)
        : m_locale(Locale{.numbers = name, .times = name, .timeZone = "Europe/Berlin"})
    {
        setDefault(icu::Locale{name});
    }
    ~InCountry() { setDefault(m_before); }
    InCountry(const InCountry&) = delete;
    InCountry& operator=(const InCountry&) = delete;

private:
    static void setDefault(const icu::Locale& locale)
    {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale::setDefault(locale, status);
        EXPECT_TRUE(U_SUCCESS(status));
    }

    icu::Locale m_before = icu::Locale::getDefault();
    Pinned<Locale> m_locale;
};

/// In the afternoon, by the summer time of home: altitudes of three to five digits, one below zero, one in an
/// emergency; names with an i to be made large or small.
SkyEntry sky()
{
    SkyEntry entry = test::skyOf(5);
    entry.date = Date{std::chrono::sys_days{std::chrono::year{2026} / 7 / 5} + std::chrono::hours{12}
        + std::chrono::minutes{5}};
    entry.unit = "km";
    entry.aircraft[0].flight.reset();
    entry.aircraft[0].hex = "4b1i8f";
    entry.aircraft[0].typeDescription = "CIRRUS SR-22 I";
    entry.aircraft[0].operatorName = "ISTANBUL HAVA TAŞIMACILIĞI, i.h.t.";
    entry.aircraft[0].altBaro = Altitude::feet(1961);
    entry.aircraft[0].baroRate = -1216;
    entry.aircraft[0].groundSpeed = 1052.4;
    entry.aircraft[1].altBaro = Altitude::feet(12500);
    entry.aircraft[1].baroRate = 64;
    entry.aircraft[2].altBaro = Altitude::feet(-150);
    entry.aircraft[3].altBaro = Altitude::feet(975);
    entry.aircraft[3].squawk = "7700";
    entry.aircraft[4].altBaro = Altitude::ground();
    entry.aircraft[4].distanceNM = 1234.56;
    return entry;
}

std::string texts(const Aircraft& aircraft)
{
    constexpr const char* none = "none";
    return aircraft.displayName() + " | " + aircraft.altitudeText() + " | " + aircraft.speedText() + " | "
        + aircraft.verticalText().value_or(none) + " | "
        + aircraft.distanceText("km", /*compact=*/false).value_or(none) + " | "
        + aircraft.lookDirection().value_or(none) + " | " + aircraft.typeName().value_or(none) + " | "
        + aircraft.operatorDisplayName().value_or(none) + "\n";
}

/// The lines of a dump that are texts.
std::string textLines(const DisplayList& list)
{
    std::istringstream lines{dump(list)};
    std::string found;
    for (std::string line; std::getline(lines, line);)
        found += line.starts_with("text ") ? line + "\n" : "";
    return found;
}

class Locales : public testing::TestWithParam<const char*> { };

} // namespace

TEST_P(Locales, theirNumbersTimesAndLettersAreAsTheCountryHasThem)
{
    const InCountry country{GetParam()};
    const SkyEntry entry = sky();
    std::string all;
    for (const Aircraft& aircraft : entry.aircraft)
        all += texts(aircraft);
    for (const test::LaidOut& one : test::laidOut(entry)) {
        all += "== " + one.title + "\n" + textLines(one.list);
        EXPECT_THAT(test::layoutProblems(one.list, test::EvenMeasurer{}), testing::IsEmpty()) << one.title;
    }
    const auto expected = std::filesystem::path{SKYVANE_LOCALES} / (std::string{GetParam()} + ".out.txt");
    EXPECT_EQ(all, Files::read(expected, 100'000)) << "should be in " << expected;
}

INSTANTIATE_TEST_SUITE_P(, Locales, testing::Values("de_DE", "es_ES", "pl_PL", "tr_TR", "hi_IN", "ar_EG"),
    [](const auto& row) { return std::string{row.param}; });

} // namespace skyvane
