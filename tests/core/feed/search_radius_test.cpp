#include "core/feed/search_radius.h"

#include <gtest/gtest.h>

#include <limits>

namespace skyvane {

TEST(SearchRadius, theFeedIsAskedWithinItsBounds)
{
    EXPECT_EQ(SearchRadius::asked(24.6), 25);
    EXPECT_EQ(SearchRadius::asked(0), 1);
    EXPECT_EQ(SearchRadius::asked(1000), 250);
    EXPECT_EQ(SearchRadius::asked(std::numeric_limits<double>::quiet_NaN()), 250);
}

TEST(SearchRadius, onTheScopeItIsBoundedButNotRounded)
{
    EXPECT_EQ(SearchRadius::bounded(12.5), 12.5);
    EXPECT_EQ(SearchRadius::bounded(0.4), 1);
    EXPECT_EQ(SearchRadius::bounded(1000), 250);
}

} // namespace skyvane
