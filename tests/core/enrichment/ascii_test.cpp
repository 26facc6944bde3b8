#include "core/enrichment/ascii.h"

#include "platform/text/unicode.h"

#include <gtest/gtest.h>

#include <string>

namespace skyvane {
namespace {

TEST(ASCII, agreesWithUnicodeOnEveryCharacter)
{
    for (int code = 0; code < 128; ++code) {
        const std::string text(1, static_cast<char>(code));
        EXPECT_EQ(std::string(1, ASCII::uppercased(text[0])), Unicode::uppercased(text)) << code;
        EXPECT_EQ(ASCII::isBlank(text[0]), Unicode::trimmed(text).empty()) << code;
        EXPECT_EQ(ASCII::isDigit(text[0]), Unicode::isNumber(text)) << code;
        EXPECT_EQ(ASCII::isUppercase(ASCII::uppercased(text[0])), Unicode::isLetter(text)) << code;
        EXPECT_EQ(ASCII::isAlreadyUppercased(text), Unicode::uppercased(text) == text) << code;
        EXPECT_TRUE(ASCII::isASCII(text)) << code;
    }
}

TEST(ASCII, everyByteOfAnotherCharacterIsOutside)
{
    for (int code = 128; code < 256; ++code) {
        const std::string text = "B73" + std::string(1, static_cast<char>(code)) + "8";
        EXPECT_FALSE(ASCII::isASCII(text)) << code;
        EXPECT_FALSE(ASCII::isAlreadyUppercased(text)) << code;
    }
}

TEST(ASCII, anEmptyTextIsAlreadyUppercased)
{
    EXPECT_TRUE(ASCII::isAlreadyUppercased(""));
}

TEST(ASCII, oneLowercaseLetterAnywhereIsNotUppercased)
{
    EXPECT_TRUE(ASCII::isAlreadyUppercased("B 738"));
    EXPECT_FALSE(ASCII::isAlreadyUppercased("b738"));
    EXPECT_FALSE(ASCII::isAlreadyUppercased("A35k"));
}

} // namespace
} // namespace skyvane
