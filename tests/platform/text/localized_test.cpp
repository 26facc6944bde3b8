#include "platform/text/localized.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(Localized, withoutACatalogueTheKeyIsTheText)
{
    EXPECT_EQ(localized("QUIET SKY"), "QUIET SKY");
}

TEST(Localized, numbersReplaceThePlaceholdersInOrder)
{
    EXPECT_EQ(localized("%lld AIRCRAFT · %lld NM", {1000, -3}), "1000 AIRCRAFT · -3 NM");
    EXPECT_EQ(localized("%lld of %lld", {7}), "7 of %lld");
    EXPECT_EQ(localized("none", {7}), "none");
}

} // namespace
} // namespace skyvane
