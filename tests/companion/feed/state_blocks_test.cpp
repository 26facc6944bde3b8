#include "companion/feed/state_blocks.h"

#include <gtest/gtest.h>

namespace skyvane {

TEST(StateBlocks, holdTheAddressesOfStates)
{
    for (const char* hex :
        {"a1b2c3", "A00001", "afffff", "3c6444", "400000", "43ffff", "4b1800", "780000", "7c0000", "c00001",
            "004000", "00b000", "0d0001", "1fffff", "4ca123", "4d2001", "501c00", "508000", "710000",
            "800000", "8a0000", "899123", "901000", "c87fff", "e00000", "e49123", "e94000"})
        EXPECT_TRUE(StateBlocks::hold(hex)) << hex;
}

TEST(StateBlocks, doNotHoldWhatIsMadeUp)
{
    for (const char* hex : {"000000", "000001", "003fff", "fffffe", "ffffff", "f00001", "b00000", "bfffff",
             "d00000", "200000", "2a0000", "900000x", "~a1b2c3", "", "a1b2c", "a1b2c3d", "a1b2cg", "-1b2c3",
             "c40000", "dfffff", "e95000", "900_00", "903000", "9fffff", "4ce000"})
        EXPECT_FALSE(StateBlocks::hold(hex)) << hex;
}

} // namespace skyvane
