#include "platform/text/format.h"

#include <gtest/gtest.h>

#include <limits>

namespace skyvane {
namespace {

TEST(Format, printsExactlyTheDecimalsAskedFor)
{
    EXPECT_EQ(Format::fixed(51.5, 5), "51.50000");
    EXPECT_EQ(Format::fixed(-0.123456, 5), "-0.12346");
    EXPECT_EQ(Format::fixed(12.34, 1), "12.3");
    EXPECT_EQ(Format::fixed(12.5, 0), "12");
    EXPECT_EQ(Format::fixed(-0.0, 1), "-0.0");
}

TEST(Format, printsTheLargestAndWhatIsNotFinite)
{
    EXPECT_EQ(Format::fixed(std::numeric_limits<double>::max(), 5).size(), 309U + 6U);
    EXPECT_EQ(Format::fixed(std::numeric_limits<double>::infinity(), 5), "inf");
    EXPECT_EQ(Format::fixed(-std::numeric_limits<double>::infinity(), 1), "-inf");
    EXPECT_EQ(Format::fixed(std::numeric_limits<double>::quiet_NaN(), 1), "nan");
}

} // namespace
} // namespace skyvane
