#include "tests/support/surroundings.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    skyvane::test::enterOwnSurroundings();
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application{argc, argv};
    return RUN_ALL_TESTS();
}
