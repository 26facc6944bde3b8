#include "desk/activation.h"

#include <gtest/gtest.h>

namespace skyvane {

TEST(Activation, aProgramStartedWithoutTheTokenKeepsTheRestOfItsEnvironment)
{
    QProcessEnvironment environment;
    for (const char* name : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID", "LANG"})
        environment.insert(name, "value");
    const QProcessEnvironment rest = Activation::withoutToken(environment);
    EXPECT_EQ(rest.keys(), QStringList{"LANG"});
    EXPECT_EQ(rest.value("LANG"), "value");
}

TEST(Activation, aProgramStartedByAClickHasItsToken)
{
    QProcessEnvironment environment;
    for (const char* name : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID", "LANG"})
        environment.insert(name, "value");
    const QProcessEnvironment clicked = Activation::withToken(environment, "click");
    for (const char* name : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"})
        EXPECT_EQ(clicked.value(name), "click");
    EXPECT_EQ(clicked.value("LANG"), "value");
    EXPECT_EQ(Activation::withToken(environment, {}).keys(), QStringList{"LANG"});
}

TEST(Activation, aTokenComesThroughAsItWasSent)
{
    EXPECT_EQ(Activation::tokenIn(Activation::platformData("host_TIME42")), "host_TIME42");
    EXPECT_TRUE(Activation::platformData({}).isEmpty());
    EXPECT_TRUE(Activation::tokenIn({}).isEmpty());
}

} // namespace skyvane
