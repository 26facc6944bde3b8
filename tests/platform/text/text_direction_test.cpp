#include "platform/text/text_direction.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(TextDirection, isThatOfTheLanguage)
{
    for (const char* language : {"ar", "ar_EG", "he", "fa", "ur_PK"})
        EXPECT_EQ(directionOf(language), TextDirection::rightToLeft) << language;
    for (const char* language : {"de", "pt_BR", "zh_CN", "ja", "", "C", "no language"})
        EXPECT_EQ(directionOf(language), TextDirection::leftToRight) << language;
}

TEST(TextDirection, aTextRunsLeftToRightByItsLettersAlone)
{
    for (const char* text : {"25 NM", "A", "…Ö", "日本", "25 NM!"})
        EXPECT_TRUE(runsLeftToRight(text)) << text;
    for (const char* text : {"", "25", "-5°", "طائرة", "A320 طائرة", "٢٥", "אב C"})
        EXPECT_FALSE(runsLeftToRight(text)) << text;
}

} // namespace
} // namespace skyvane
