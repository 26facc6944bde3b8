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

TEST(Activation, aTokenComesThroughAsItWasSent)
{
    EXPECT_EQ(Activation::tokenIn(Activation::platformData("host_TIME42")), "host_TIME42");
    EXPECT_TRUE(Activation::platformData({}).isEmpty());
    EXPECT_TRUE(Activation::tokenIn({}).isEmpty());
}

} // namespace skyvane
