#include "platform/files/files.h"
#include "platform/text/catalogue.h"
#include "platform/text/printable.h"
#include "platform/text/unicode.h"
#include "tests/support/languages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unicode/locid.h>
#include <unicode/plurrule.h>
#include <unicode/unistr.h>
#include <unicode/utypes.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace skyvane {
namespace {

using testing::HasSubstr;
using testing::SizeIs;

/// A counted text has several forms.
struct Translation {
    std::string english;
    std::vector<std::string> forms;
};

std::vector<std::string> split(std::string_view forms)
{
    std::vector<std::string> all;
    for (std::size_t end = forms.find('\0'); end != std::string_view::npos; end = forms.find('\0')) {
        all.emplace_back(forms.substr(0, end));
        forms.remove_prefix(end + 1);
    }
    all.emplace_back(forms);
    return all;
}

/// Of what the pattern matches in a text, each as often as it is there.
std::multiset<std::string> found(const std::string& text, const std::regex& wanted)
{
    std::multiset<std::string> all;
    for (std::sregex_iterator match{text.begin(), text.end(), wanted}; match != std::sregex_iterator{};
         ++match)
        all.insert(match->str());
    return all;
}

/// What a text begins and ends with that is no word.
std::pair<std::size_t, std::size_t> blanks(const std::string& text)
{
    const std::string_view words = Unicode::trimmed(text);
    const auto before = static_cast<std::size_t>(words.data() - text.data());
    return {before, text.size() - words.size() - before};
}

/// A catalogue as it is installed.
class BuiltCatalogue : public testing::TestWithParam<std::string> {
protected:
    BuiltCatalogue()
    {
        constexpr std::size_t enough = 4 << 20;
        const auto file = test::compiledCatalogues() / GetParam() / "LC_MESSAGES/skyvane.mo";
        const std::string bytes = Files::read(file, enough).value_or("");
        rule = Catalogues::read(bytes).plural;
        EXPECT_TRUE(Catalogues::visit(bytes, [&](std::string_view key, std::string_view text) {
            if (key.empty())
                head = text;
            else
                translations.push_back({.english = std::string{key}, .forms = split(text)});
        })) << file;
    }

    std::string head;
    PluralRule rule;
    std::vector<Translation> translations;
};

} // namespace

TEST_P(BuiltCatalogue, saysInItsHeadWhichLanguageItIs)
{
    EXPECT_THAT(head, HasSubstr("\nLanguage: " + GetParam() + "\n"));
    EXPECT_THAT(head, HasSubstr("charset=UTF-8\n"));
}

/// A form of the catalogue is a category of the Unicode library's, whatever they are called.
TEST_P(BuiltCatalogue, countsAsTheUnicodeLibraryDoes)
{
    constexpr std::uint64_t enough = 1000; // Some languages speak of millions in yet another way.
    const std::string locale = GetParam() == "pt" ? "pt_PT" : GetParam(); // To the library, "pt" is Brazil's.
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::PluralRules> rules{
        icu::PluralRules::forLocale(icu::Locale{locale.c_str()}, status)};
    ASSERT_TRUE(U_SUCCESS(status));
    std::map<std::size_t, std::string> categories;
    for (std::uint64_t count = 0; count <= enough; ++count) {
        std::string category;
        rules->select(static_cast<std::int32_t>(count)).toUTF8String(category);
        const auto known = categories.try_emplace(rule.form(count), category).first;
        EXPECT_EQ(known->second, category) << count;
    }
    std::set<std::string> different;
    for (const auto& [form, category] : categories)
        different.insert(category);
    EXPECT_THAT(different, SizeIs(categories.size()));
    EXPECT_THAT(head, HasSubstr("nplurals=" + std::to_string(categories.size()) + ";"));
}

TEST_P(BuiltCatalogue, hasEveryFormOfATextThatCounts)
{
    const std::size_t forms
        = std::stoul(head.substr(head.find("nplurals=") + std::string{"nplurals="}.size()));
    std::size_t counted = 0;
    for (const Translation& translation : translations) {
        if (translation.english != "%1 aircraft within %2" && translation.forms.size() == 1)
            continue;
        EXPECT_THAT(translation.forms, SizeIs(forms)) << translation.english;
        ++counted;
    }
    EXPECT_GT(counted, 0U);
}

TEST_P(BuiltCatalogue, keepsPlaceholdersMnemonicsAndTheBlanksAtBothEnds)
{
    const std::regex placeholderOrMnemonic{"%lld|%[1-9]|&"};
    for (const auto& [english, forms] : translations) {
        for (const std::string& form : forms) {
            EXPECT_EQ(found(form, placeholderOrMnemonic), found(english, placeholderOrMnemonic))
                << english << " → " << form;
            EXPECT_EQ(blanks(form), blanks(english)) << english << " → " << form;
        }
    }
}

TEST_P(BuiltCatalogue, holdsNothingThatSteersTheTextAround)
{
    for (const auto& [english, forms] : translations) {
        for (const std::string& form : forms) {
            EXPECT_EQ(Unicode::printable(form), form) << english;
            EXPECT_EQ(std::ranges::count(form, '\n'), std::ranges::count(english, '\n')) << english;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    , BuiltCatalogue, testing::ValuesIn(test::languages()), [](const auto& row) { return row.param; });

} // namespace skyvane
