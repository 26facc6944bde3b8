#include "platform/text/plural_rule.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace skyvane {
namespace {

using testing::ElementsAre;

std::vector<std::size_t> forms(const std::string& expression, const std::vector<std::uint64_t>& counts)
{
    const PluralRule rule{
        "Language: xx\nPlural-Forms: nplurals=6; plural=" + expression + ";\nMIME-Version: 1.0\n"};
    std::vector<std::size_t> forms(counts.size());
    std::ranges::transform(counts, forms.begin(), [&](std::uint64_t count) { return rule.form(count); });
    return forms;
}

TEST(PluralRule, isThatOfEnglishWithoutAnother)
{
    EXPECT_EQ(PluralRule{}.form(0), 1);
    EXPECT_EQ(PluralRule{}.form(1), 0);
    EXPECT_EQ(PluralRule{"Language: de\n"}.form(2), 1);
}

TEST(PluralRule, isReadFromTheHeadOfACatalogue)
{
    EXPECT_THAT(forms("(n != 1)", {0, 1, 2}), ElementsAre(1, 0, 1));
    EXPECT_THAT(forms("(n > 1)", {0, 1, 2}), ElementsAre(0, 0, 1));
    EXPECT_THAT(forms("0", {0, 1, 2}), ElementsAre(0, 0, 0));
}

TEST(PluralRule, chainsConditions)
{
    const char* slavic = "(n%10==1 && n%100!=11 ? 0 : n%10>=2 && n%10<=4 && (n%100<10 || n%100>=20) ? 1 : 2)";
    EXPECT_THAT(forms(slavic, {1, 2, 5, 11, 12, 21, 22, 25, 111}), ElementsAre(0, 1, 2, 2, 2, 0, 1, 2, 2));
    const char* arabic = "n==0 ? 0 : n==1 ? 1 : n==2 ? 2 : n%100>=3 && n%100<=10 ? 3 : n%100>=11 ? 4 : 5";
    EXPECT_THAT(forms(arabic, {0, 1, 2, 3, 11, 100}), ElementsAre(0, 1, 2, 3, 4, 5));
}

TEST(PluralRule, reckonsAsCDoes)
{
    EXPECT_THAT(forms("1 + 2 * n - 6 / 2", {1, 4}), ElementsAre(0, 6));
    EXPECT_THAT(forms("10 - 3 - 2", {0}), ElementsAre(5));
    EXPECT_THAT(forms("!n || !(n == 2)", {0, 1, 2}), ElementsAre(1, 1, 0));
    EXPECT_THAT(forms("n < 2 == 1", {1, 2}), ElementsAre(1, 0));
    EXPECT_THAT(forms("n / 0 + n % 0", {7}), ElementsAre(0));
}

TEST(PluralRule, bindsOperatorsAsTightlyAsCDoes)
{
    EXPECT_THAT(forms("8 / 2 * 4", {0}), ElementsAre(16));
    EXPECT_THAT(forms("2 * 7 / 4", {0}), ElementsAre(3));
    EXPECT_THAT(forms("2 * 7 % 4", {0}), ElementsAre(2));
    EXPECT_THAT(forms("10 - 3 + 2", {0}), ElementsAre(9));
    EXPECT_THAT(forms("10 - 2 * 3", {0}), ElementsAre(4));
    EXPECT_THAT(forms("0 <= 0 + 5", {0}), ElementsAre(1));
    EXPECT_THAT(forms("7 >= 2 + 3", {0}), ElementsAre(1));
    EXPECT_THAT(forms("1 < 2 + 3", {0}), ElementsAre(1));
    EXPECT_THAT(forms("6 > 2 + 3", {0}), ElementsAre(1));
    EXPECT_THAT(forms("2 == 1 < 3", {0}), ElementsAre(0));
    EXPECT_THAT(forms("0 != 3 < 2", {0}), ElementsAre(0));
    EXPECT_THAT(forms("1 && 2 == 2", {0}), ElementsAre(1));
    EXPECT_THAT(forms("1 || 0 && 0", {0}), ElementsAre(1));
}

TEST(PluralRule, takesEveryNumberButZeroForTrue)
{
    EXPECT_THAT(forms("n && 2", {0, 1, 2}), ElementsAre(0, 1, 1));
    EXPECT_THAT(forms("2 && n", {0, 1, 2}), ElementsAre(0, 1, 1));
    EXPECT_THAT(forms("n || 0", {0, 1, 2}), ElementsAre(0, 1, 1));
    EXPECT_THAT(forms("0 || n", {0, 1, 2}), ElementsAre(0, 1, 1));
    EXPECT_THAT(forms("n ? 4 : 3", {0, 1, 2}), ElementsAre(3, 4, 4));
    EXPECT_THAT(forms("!n", {0, 1, 2}), ElementsAre(1, 0, 0));
}

TEST(PluralRule, standsBehindItsOwnName)
{
    EXPECT_EQ(PluralRule{"X-Other: plural=0;\nPlural-Forms: nplurals=2; plural=(n > 1);\n"}.form(2), 1);
    EXPECT_EQ(PluralRule{"X-Other: plural=0;\n"}.form(2), 1);
}

TEST(PluralRule, ofMoreThan1000BytesIsThatOfEnglish)
{
    EXPECT_THAT(forms(std::string(999, ' ') + "3", {1}), ElementsAre(3));
    EXPECT_THAT(forms(std::string(1000, ' ') + "3", {1}), ElementsAre(0));
}

TEST(PluralRule, thatIsNoExpressionIsThatOfEnglish)
{
    for (const std::string broken :
        {"", "(n != 1", "n !=", "n ? 1", "m", "n n", "(n != 1))", "99999999999999999999", "n ? : 1"})
        EXPECT_THAT(forms(broken, {0, 1, 2}), ElementsAre(1, 0, 1)) << broken;
    EXPECT_THAT(forms(std::string(100'000, '('), {1, 2}), ElementsAre(0, 1));
}

} // namespace
} // namespace skyvane
