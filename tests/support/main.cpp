#include "tests/support/surroundings.h"

#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    skyvane::test::enterOwnSurroundings();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
