#include "platform/text/locale.h"

#include "platform/pinned.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <limits>
#include <map>
#include <string>

namespace skyvane {
namespace {

constexpr Date afternoon{std::chrono::sys_days{std::chrono::year{2026} / 7 / 5} + std::chrono::hours{14}
    + std::chrono::minutes{5}};

Locale of(const char* name, const char* timeZone = "UTC")
{
    return {.numbers = name, .times = name, .timeZone = timeZone};
}

Locale in(const std::map<std::string, std::string>& environment)
{
    for (const char* name : {"LC_ALL", "LC_NUMERIC", "LC_TIME", "LANG"}) {
        const auto set = environment.find(name);
        setenv(name, set != environment.end() ? set->second.c_str() : "", /*overwrite=*/1);
    }
    Locale locale = Locale::current();
    for (const char* name : {"LC_ALL", "LC_NUMERIC", "LC_TIME"})
        unsetenv(name);
    setenv("LANG", "C.UTF-8", /*overwrite=*/1); // As it is for every test.
    return locale;
}

TEST(Locale, isTheEnvironmentsTheMostParticularVariableFirst)
{
    const Locale locale = in({{"LANG", "fr_FR.UTF-8"}, {"LC_TIME", "de_DE@euro"}});
    EXPECT_EQ(locale.numbers, "fr_FR");
    EXPECT_EQ(locale.times, "de_DE");
    EXPECT_EQ(in({{"LC_NUMERIC", "de_CH"}, {"LANG", "fr_FR"}}).numbers, "de_CH");
    EXPECT_EQ(in({{"LC_ALL", "pl_PL"}, {"LC_NUMERIC", "de_CH"}, {"LANG", "fr_FR"}}).numbers, "pl_PL");
}

TEST(Locale, isAmericanWhereTheEnvironmentNamesNone)
{
    for (const char* name : {"", "C", "POSIX", "C.UTF-8", ".UTF-8"}) {
        EXPECT_EQ(in({{"LC_ALL", name}}).numbers, "en_US") << name;
        EXPECT_EQ(in({{"LANG", name}}).times, "en_US") << name;
    }
}

TEST(Locale, groupsIntegers)
{
    const Pinned<Locale> english{of("en_US")};
    EXPECT_EQ(groupedInteger(12500), "12,500");
    EXPECT_EQ(groupedInteger(-150), "-150");
    EXPECT_EQ(groupedInteger(std::numeric_limits<std::int64_t>::max()), "9,223,372,036,854,775,807");
}

TEST(Locale, groupsAsTheCountryDoes)
{
    const Pinned<Locale> german{of("de_DE")};
    EXPECT_EQ(groupedInteger(12500), "12.500");
    {
        const Pinned<Locale> french{of("fr_FR")};
        EXPECT_EQ(groupedInteger(12500), "12\u202f500");
    }
    EXPECT_EQ(groupedInteger(12500), "12.500");
}

TEST(Locale, groupsFourDigitsOnlyWhereTheCountryDoes)
{
    for (const char* name : {"es_ES", "pl_PL", "pt_PT", "bg_BG"}) {
        const Pinned<Locale> country{of(name)};
        EXPECT_EQ(groupedInteger(1961), "1961") << name;
        EXPECT_EQ(groupedInteger(-9999), "-9999") << name;
        EXPECT_NE(groupedInteger(15000), "15000") << name;
    }
    for (const char* name : {"en_US", "de_DE", "fr_FR", "es_MX", "pt_BR"}) {
        const Pinned<Locale> country{of(name)};
        EXPECT_NE(groupedInteger(1961), "1961") << name;
    }
}

TEST(Locale, groupsWithoutASign)
{
    const Pinned<Locale> english{of("en_US")};
    EXPECT_EQ(groupedMagnitude(-1216), "1,216");
    EXPECT_EQ(groupedMagnitude(1216), "1,216");
    EXPECT_EQ(groupedMagnitude(std::numeric_limits<std::int64_t>::min()), "9,223,372,036,854,775,808");
    EXPECT_EQ(groupedInteger(std::numeric_limits<std::int64_t>::min()), "-9,223,372,036,854,775,808");
}

TEST(Locale, writesTimesInTwelveOrTwentyFourHours)
{
    const Pinned<Locale> english{of("en_US")};
    EXPECT_EQ(shortTime(afternoon), "2:05 PM");
    EXPECT_EQ(timeWithSeconds(afternoon), "2:05:00 PM");
    const Pinned<Locale> german{of("de_DE")};
    EXPECT_EQ(shortTime(afternoon), "14:05");
    EXPECT_EQ(timeWithSeconds(afternoon), "14:05:00");
}

TEST(Locale, writesTimesInTheTimeZone)
{
    const Pinned<Locale> summerTime{of("de_DE", "Europe/Berlin")};
    EXPECT_EQ(shortTime(afternoon), "16:05");
}

TEST(Locale, anUnknownLocaleStillWritesNumbersAndTimes)
{
    const Pinned<Locale> unknown{of("xx_YY")};
    EXPECT_FALSE(groupedInteger(12500).empty());
    EXPECT_FALSE(shortTime(afternoon).empty());
}

} // namespace
} // namespace skyvane
