#include "host/extension/clean_environment.h"

#include <gtest/gtest.h>

namespace skyvane {

TEST(CleanEnvironment, keepsLocaleTimeZonePathHomeAndProxies)
{
    QProcessEnvironment whole;
    const QStringList kept{
        "LANG", "LANGUAGE", "LC_ALL", "LC_NUMERIC", "TZ", "PATH", "HOME", "https_proxy", "NO_PROXY"};
    for (const QString& name : kept)
        whole.insert(name, "value of " + name);
    EXPECT_EQ(cleanEnvironment(whole), whole);
}

TEST(CleanEnvironment, dropsEverythingElse)
{
    QProcessEnvironment whole;
    for (const char* name : {"LD_PRELOAD", "QT_QPA_PLATFORM", "SSH_AUTH_SOCK", "DISPLAY", "XDG_CONFIG_HOME",
             "PATHS", "MY_LC_ALL"})
        whole.insert(name, "value");
    EXPECT_TRUE(cleanEnvironment(whole).isEmpty());
}

} // namespace skyvane
