#include "platform/text/catalogue.h"

#include "tests/platform/text/compiled_catalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace skyvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

using test::ByteOrder;
using test::compiled;
using test::Entries;

const Entries german{
    {"", "Content-Type: text/plain; charset=UTF-8\n"}, {"NEAREST", "NÄCHSTES"}, {"Level", ""}};

/// The languages that are wanted while these variables alone say so.
std::vector<std::string> wantedBy(const std::map<std::string, std::string>& variables)
{
    std::map<std::string, std::string> before;
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const char* value = std::getenv(name))
            before[name] = value;
        unsetenv(name);
    }
    for (const auto& [name, value] : variables)
        setenv(name.c_str(), value.c_str(), 1);
    std::vector<std::string> wanted = Catalogues::wanted();
    for (const auto& [name, value] : variables)
        unsetenv(name.c_str());
    for (const auto& [name, value] : before)
        setenv(name.c_str(), value.c_str(), 1);
    return wanted;
}

TEST(Catalogue, isReadInEitherByteOrder)
{
    for (const ByteOrder order : {ByteOrder::little, ByteOrder::big})
        EXPECT_THAT(Catalogues::read(compiled(german, order)).texts,
            UnorderedElementsAre(Pair("NEAREST", "NÄCHSTES"), Pair("Level", "")));
}

TEST(Catalogue, holdsEveryPluralFormAndTheRule)
{
    const Entries plural{{"", "Plural-Forms: nplurals=2; plural=(n > 1);\n"},
        {std::string("%d hour\0%d hours", 16), std::string("%d heure\0%d heures", 18)}};
    const Catalogue catalogue = Catalogues::read(compiled(plural, ByteOrder::little));
    EXPECT_THAT(catalogue.texts, ElementsAre(Pair("%d hour", std::string("%d heure\0%d heures", 18))));
    EXPECT_EQ(catalogue.plural.form(0), 0);
    EXPECT_EQ(catalogue.plural.form(2), 1);
}

TEST(Catalogue, runsInTheDirectionOfTheLanguageInItsHead)
{
    const auto directionOfHead = [](const std::string& head) {
        return Catalogues::read(compiled({{"", head}, {"NEAREST", "…"}}, ByteOrder::little)).direction;
    };
    EXPECT_EQ(directionOfHead("Language: ar\n"), TextDirection::rightToLeft);
    EXPECT_EQ(directionOfHead("X-Other: 1\nLanguage: he_IL\nX-More: 2\n"), TextDirection::rightToLeft);
    EXPECT_EQ(directionOfHead("Language: pt_BR\n"), TextDirection::leftToRight);
    EXPECT_EQ(directionOfHead("Language-Team: ar\nX-Language: ar\n"), TextDirection::leftToRight);
    EXPECT_EQ(directionOfHead("Language: \n"), TextDirection::leftToRight);
}

TEST(Catalogue, mayHaveItsTablesBehindItsTexts)
{
    std::string bytes;
    for (const std::size_t value : std::vector<std::size_t>{0x950412de, 0, 1, 32, 40, 0, 40})
        bytes += test::number(value, ByteOrder::little);
    bytes += std::string("A\0B\0", 4);
    for (const std::size_t value : std::vector<std::size_t>{1, 28, 1, 30})
        bytes += test::number(value, ByteOrder::little);
    EXPECT_THAT(Catalogues::read(bytes).texts, ElementsAre(Pair("A", "B")));
}

TEST(Catalogue, thatIsCutShortIsNone)
{
    const std::string whole = compiled(german, ByteOrder::little);
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_THAT(Catalogues::read(std::string{whole, 0, length}).texts, IsEmpty()) << length;
}

TEST(Catalogue, whoseTablesLeadOutOfItIsNone)
{
    const std::string whole = compiled(german, ByteOrder::little);
    for (std::size_t place = 8; place < 28 + 2 * 8 * german.size(); place += 4) {
        if (place == 20 || place == 24) // Of the hashes, which nobody reads.
            continue;
        std::string broken = whole;
        broken.replace(place, 4, "\xff\xff\xff\xff");
        EXPECT_THAT(Catalogues::read(broken).texts, IsEmpty()) << place;
    }
}

TEST(WantedCatalogues, areThoseOfTheLocaleOfTexts)
{
    EXPECT_THAT(wantedBy({{"LANG", "de_AT.UTF-8"}}), ElementsAre("de_AT", "de"));
    EXPECT_THAT(wantedBy({{"LANG", "fr"}, {"LC_MESSAGES", "de_DE.UTF-8"}}), ElementsAre("de_DE", "de"));
    EXPECT_THAT(wantedBy({{"LC_MESSAGES", "de_DE"}, {"LC_ALL", "es_MX.UTF-8"}}), ElementsAre("es_MX", "es"));
    EXPECT_THAT(wantedBy({{"LC_ALL", ""}, {"LANG", "es_ES"}}), ElementsAre("es_ES", "es"));
}

TEST(WantedCatalogues, ofAVariantAreThoseOfTheLanguage)
{
    EXPECT_THAT(
        wantedBy({{"LANG", "sr_RS.UTF-8@latin"}}), ElementsAre("sr_RS@latin", "sr@latin", "sr_RS", "sr"));
}

TEST(WantedCatalogues, ofACountryWithoutItsOwnAreThoseOfTheLanguage)
{
    EXPECT_THAT(wantedBy({{"LANG", "pt_AO.UTF-8"}}), ElementsAre("pt_AO", "pt"));
    EXPECT_THAT(wantedBy({{"LANG", "pt_BR.UTF-8"}}), ElementsAre("pt_BR", "pt"));
}

TEST(WantedCatalogues, ofEveryNorwegianEndWithTheOneThatAllOfThemRead)
{
    EXPECT_THAT(wantedBy({{"LANG", "nb_NO.UTF-8"}}), ElementsAre("nb_NO", "nb"));
    EXPECT_THAT(wantedBy({{"LANG", "no_NO"}}), ElementsAre("no_NO", "no", "nb"));
    EXPECT_THAT(wantedBy({{"LANGUAGE", "no"}, {"LANG", "de_DE"}}), ElementsAre("no", "nb"));
    EXPECT_THAT(wantedBy({{"LANG", "nn_NO.UTF-8"}}), ElementsAre("nn_NO", "nn", "nb"));
}

TEST(WantedCatalogues, ofChineseAreThoseInTheCharactersOfTheReader)
{
    EXPECT_THAT(wantedBy({{"LANG", "zh_CN.UTF-8"}}), ElementsAre("zh_CN", "zh"));
    EXPECT_THAT(wantedBy({{"LANG", "zh_SG.UTF-8"}}), ElementsAre("zh_SG", "zh", "zh_CN"));
    EXPECT_THAT(wantedBy({{"LANGUAGE", "zh"}, {"LANG", "de_DE"}}), ElementsAre("zh", "zh_CN"));
    EXPECT_THAT(wantedBy({{"LANGUAGE", "zh_Hans:zh_Hans_HK"}, {"LANG", "de_DE"}}),
        ElementsAre("zh_Hans", "zh", "zh_CN", "zh_Hans_HK"));
    for (const std::string traditional : {"zh_TW", "zh_HK", "zh_Hant"})
        EXPECT_THAT(wantedBy({{"LANG", traditional}}), ElementsAre(traditional, "zh"));
    EXPECT_THAT(wantedBy({{"LANG", "zh_TW.UTF-8"}, {"LANGUAGE", "zh_TW:zh_CN"}}),
        ElementsAre("zh_TW", "zh", "zh_CN"));
}

TEST(WantedCatalogues, areTheUsersLanguagesInTheirOrder)
{
    EXPECT_THAT(
        wantedBy({{"LANG", "en_US.UTF-8"}, {"LANGUAGE", "de::fr_CA"}}), ElementsAre("de", "fr_CA", "fr"));
    EXPECT_THAT(wantedBy({{"LANG", "de_DE.UTF-8"}, {"LANGUAGE", ""}}), ElementsAre("de_DE", "de"));
}

TEST(WantedCatalogues, endAtEnglish)
{
    EXPECT_THAT(wantedBy({{"LANG", "en_GB.UTF-8"}}), IsEmpty());
    EXPECT_THAT(wantedBy({{"LANG", "de_DE.UTF-8"}, {"LANGUAGE", "fr:en_US:de"}}), ElementsAre("fr"));
    EXPECT_THAT(wantedBy({{"LANG", "de_DE.UTF-8"}, {"LANGUAGE", "C:de"}}), IsEmpty());
}

TEST(WantedCatalogues, areNoneInTheNeutralLocale)
{
    EXPECT_THAT(wantedBy({}), IsEmpty());
    for (const char* neutral : {"C", "POSIX", "C.UTF-8"})
        EXPECT_THAT(wantedBy({{"LC_ALL", neutral}, {"LANG", "de_DE"}, {"LANGUAGE", "de"}}), IsEmpty())
            << neutral;
}

TEST(WantedCatalogues, neverLeadOutOfTheFolder)
{
    EXPECT_THAT(wantedBy({{"LANG", "../../tmp"}}), IsEmpty());
    EXPECT_THAT(wantedBy({{"LANG", "de@/tmp"}}), ElementsAre("de"));
}

} // namespace
} // namespace skyvane
