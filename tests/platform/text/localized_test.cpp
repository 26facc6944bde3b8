#include "platform/text/localized.h"

#include "tests/platform/text/compiled_catalogue.h"
#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace skyvane {
namespace {

/// A user whose language has this catalogue.
class Reader {
public:
    Reader(const std::string& language, const test::Entries& entries, std::size_t fileSize = 0)
    {
        const std::filesystem::path folder = m_scratch.path() / language / "LC_MESSAGES";
        std::filesystem::create_directories(folder);
        std::ofstream{folder / "skyvane.mo"} << test::compiled(entries, test::ByteOrder::little);
        if (fileSize != 0)
            std::filesystem::resize_file(folder / "skyvane.mo", fileSize);
        if (const char* before = std::getenv("LC_ALL"))
            m_before = before;
        setenv("LC_ALL", (language + ".UTF-8").c_str(), 1);
        useCatalogues(m_scratch.path());
    }
    ~Reader()
    {
        m_before ? setenv("LC_ALL", m_before->c_str(), 1) : unsetenv("LC_ALL");
        useCatalogues(m_scratch.path() / "nothing");
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

private:
    test::ScratchFolder m_scratch;
    std::optional<std::string> m_before;
};

struct Polish : Reader {
    explicit Polish(const test::Entries& entries, std::size_t fileSize = 0) : Reader("pl", entries, fileSize)
    {
    }
};

std::string aircraft(std::uint64_t count)
{
    return localizedCount("one aircraft", "%1 aircraft", count, {count});
}

TEST(Localized, withoutACatalogueTheKeyIsTheText)
{
    EXPECT_EQ(localized("QUIET SKY"), "QUIET SKY");
}

TEST(Localized, numbersReplaceThePlaceholdersInOrder)
{
    EXPECT_EQ(localized("%lld AIRCRAFT · %lld NM", {1000, -3}), "1000 AIRCRAFT · -3 NM");
    EXPECT_EQ(localized("%lld of %lld", {7}), "7 of %lld");
    EXPECT_EQ(localized("none", {7}), "none");
    EXPECT_EQ(localized("100 % of %lld", {7}), "100 % of 7");
}

TEST(Localized, numberedPlaceholdersMayStandInAnyOrder)
{
    EXPECT_EQ(localized("%2 before %1", {"one", 2}), "2 before one");
    EXPECT_EQ(localized("%1, %1 and %3", {"a", "b"}), "a, a and %3");
    EXPECT_EQ(localized("100 % of %0%", {"a"}), "100 % of %0%");
    EXPECT_EQ(localized("%", {"a"}), "%");
    EXPECT_EQ(localized("%9%1", {1, 2, 3, 4, 5, 6, 7, 8, "i"}), "i1");
}

TEST(Localized, whatFillsAPlaceholderIsNotFilledItself)
{
    EXPECT_EQ(localized("“%1” %2", {"%2 %lld", "b"}), "“%2 %lld” b");
}

TEST(Localized, aTextThatCountsHasTwoFormsInEnglish)
{
    EXPECT_EQ(aircraft(0), "0 aircraft");
    EXPECT_EQ(aircraft(1), "one aircraft");
    EXPECT_EQ(aircraft(2), "2 aircraft");
}

TEST(Localized, aTextThatCountsHasAsManyFormsAsTheLanguage)
{
    const Polish polish{{
        {"", "Plural-Forms: nplurals=3; plural=(n==1 ? 0 : n%10>=2 && n%10<=4 ? 1 : 2);\n"},
        {std::string{"one aircraft\0%1 aircraft", 24},
            std::string{"%1 samolot\0%1 samoloty\0%1 samolotów", 36}},
    }};
    EXPECT_EQ(aircraft(1), "1 samolot");
    EXPECT_EQ(aircraft(3), "3 samoloty");
    EXPECT_EQ(aircraft(5), "5 samolotów");
    EXPECT_EQ(localized("one aircraft"), "%1 samolot");
}

TEST(Localized, textsRunInTheDirectionOfTheLanguageThatTheyAreIn)
{
    EXPECT_EQ(textDirection(), TextDirection::leftToRight);
    {
        const Reader arabic{"ar", {{"", "Language: ar\n"}, {"NEAREST", "الأقرب"}}};
        EXPECT_EQ(textDirection(), TextDirection::rightToLeft);
    }
    const Reader withoutCatalogue{"ar", {{"", "Language: ar\n"}, {"NEAREST", "الأقرب"}}, 20};
    EXPECT_EQ(textDirection(), TextDirection::leftToRight);
}

TEST(Localized, whatRunsTheOtherWayStandsBetweenMarksInATextFromRightToLeft)
{
    const Reader arabic{"ar",
        {{"", "Language: ar\nPlural-Forms: nplurals=1; plural=0;\n"}, {"%1 away", "تبعد %1"},
            {std::string{"%1 within %2\0%1 within %2", 25}, "%1 ضمن %2"}}};
    EXPECT_EQ(localized("%1 away", {"25 NM"}), "تبعد \u200E25 NM\u200E");
    EXPECT_EQ(localized("%1 away", {25}), "تبعد 25");
    EXPECT_EQ(localized("%1 away", {"طائرة A320"}), "تبعد طائرة A320");
    EXPECT_EQ(localizedCount("%1 within %2", "%1 within %2", 7, {7, "25 NM"}), "7 ضمن \u200E25 NM\u200E");
    EXPECT_EQ(localized("in English: %1", {"25 NM"}), "in English: 25 NM");
}

TEST(Localized, textsOfLibrariesAreInTheLanguageOfOurs)
{
    setenv("LC_ALL", "C.UTF-8", 1);
    useCatalogues("/nonexistent");
    EXPECT_STREQ(std::setlocale(LC_MESSAGES, nullptr), "C.UTF-8");
    unsetenv("LC_ALL");
}

TEST(Localized, aCatalogueOfMoreThanFourMebibytesIsNone)
{
    constexpr std::size_t largest = 4 << 20;
    for (const std::size_t size : {largest, largest + 1}) {
        const Polish polish{{{"NEAREST", "NAJBLIŻEJ"}}, size};
        EXPECT_EQ(localized("NEAREST"), size == largest ? "NAJBLIŻEJ" : "NEAREST");
    }
}

TEST(Localized, aMissingFormIsTheFirst)
{
    const Polish polish{{
        {"", "Plural-Forms: nplurals=3; plural=n;\n"},
        {std::string{"one aircraft\0%1 aircraft", 24}, "%1 samolot"},
    }};
    EXPECT_EQ(aircraft(7), "7 samolot");
}

} // namespace
} // namespace skyvane
