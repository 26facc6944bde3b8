#include "platform/text/localized.h"
#include "platform/text/printable.h"
#include "tests/support/languages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace skyvane {
namespace {

using testing::Ge;
using testing::HasSubstr;
using testing::SizeIs;
using testing::UnorderedElementsAreArray;

/// The field's terms in English and, in this order, what a language calls them.
using Terms = std::vector<std::pair<std::string, std::string>>;

std::filesystem::path folder()
{
    return test::languagesFolder() / "terms";
}

/// A line a term: English, a tab, the term.
Terms termsOf(const std::string& language)
{
    std::ifstream table{folder() / (language + ".tsv")};
    Terms terms;
    for (std::string line; std::getline(table, line);) {
        const std::size_t tab = line.find('\t');
        EXPECT_NE(tab, std::string::npos) << language << ": " << line;
        if (tab != std::string::npos)
            terms.emplace_back(line.substr(0, tab), line.substr(tab + 1));
    }
    return terms;
}

std::vector<std::string> englishOf(const Terms& terms)
{
    std::vector<std::string> english;
    for (const auto& [term, translation] : terms)
        english.push_back(term);
    return english;
}

/// In small letters, without mnemonics.
std::string plain(const std::string& text, const std::string& language)
{
    std::string small;
    icu::UnicodeString::fromUTF8(text).toLower(icu::Locale{language.c_str()}).toUTF8String(small);
    std::erase(small, '&');
    return small;
}

TEST(Terms, areTheSameInEveryLanguageAndNoOther)
{
    std::vector<std::string> tables;
    for (const auto& entry : std::filesystem::directory_iterator{folder()})
        tables.push_back(entry.path().stem().string());
    EXPECT_THAT(tables, UnorderedElementsAreArray(test::languages()));
    const std::vector<std::string> english = englishOf(termsOf("de"));
    EXPECT_THAT(english, SizeIs(Ge(20)));
    for (const std::string& language : test::languages())
        EXPECT_EQ(englishOf(termsOf(language)), english) << language;
}

TEST(Terms, haveATranslationEach)
{
    for (const std::string& language : test::languages()) {
        for (const auto& [term, translation] : termsOf(language)) {
            EXPECT_FALSE(Unicode::oneLine(translation).empty()) << language << ": " << term;
            EXPECT_EQ(Unicode::oneLine(translation), translation) << language << ": " << term;
        }
    }
}

/// The texts that are nothing but a term, in whatever letters.
TEST(Terms, areTheWordsOfTheCatalogues)
{
    for (const std::string& language : test::languages()) {
        const test::InLanguage there{language};
        const Terms terms = termsOf(language);
        for (const char* text : {"Aircraft", "Altitude", "Distance", "Emergency", "Military aircraft",
                 "Nearest Aircraft", "Radar scope", "Registration", "Sky Board", "Watch list"}) {
            const auto term
                = std::ranges::find(terms, plain(text, "en"), [](const auto& pair) { return pair.first; });
            ASSERT_NE(term, terms.end()) << text;
            EXPECT_THAT(plain(localized(text), language), HasSubstr(plain(term->second, language)))
                << language << ": " << text;
        }
    }
}

} // namespace
} // namespace skyvane
