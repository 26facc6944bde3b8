#include "tests/session/message_bus.h"
#include "tests/session/wait_for.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFontDatabase>
#include <QStringList>

#include <gmock/gmock.h>

#include <fstream>
#include <set>
#include <string>
#include <unistd.h>

namespace skyvane {

namespace {

using testing::IsSubsetOf;
using testing::StartsWith;
using testing::UnorderedElementsAre;

std::set<std::string> variables()
{
    std::set<std::string> names;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string variable{*entry};
        names.insert(variable.substr(0, variable.find('=')));
    }
    return names;
}

QVariantList asked(const test::MessageBus& bus, const QString& method, const QVariantList& words = {})
{
    auto message = QDBusMessage::createMethodCall(
        "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method);
    message.setArguments(words);
    const QDBusMessage reply = QDBusConnection::connectToBus(bus.address(), "asking").call(message);
    QDBusConnection::disconnectFromBus("asking");
    return reply.arguments();
}

} // namespace

TEST(Surroundings, holdNoVariableThatATestDidNotName)
{
    EXPECT_THAT(variables(),
        IsSubsetOf({"ASAN_OPTIONS", "DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS", "FONTCONFIG_FILE",
            "GIO_USE_VFS", "GSETTINGS_BACKEND", "GTEST_FILTER", "GTEST_BRIEF", "HOME", "LANG", "LSAN_OPTIONS",
            "PATH", "QT_QPA_PLATFORM", "TMPDIR", "TZ", "UBSAN_OPTIONS", "XDG_CONFIG_DIRS",
            "XDG_RUNTIME_DIR"}));
}

TEST(Surroundings, haveAHomeFolderOfTheirOwn)
{
    const std::string home = qgetenv("HOME").toStdString();
    EXPECT_THAT(home, StartsWith(std::filesystem::temp_directory_path().string()));
    EXPECT_TRUE(std::filesystem::is_empty(home));
}

TEST(Surroundings, haveTheFontsOfTheTestsAndNoOthers)
{
    std::set<std::string> families;
    for (const QString& family : QFontDatabase::families())
        families.insert(family.toStdString());
    EXPECT_THAT(families,
        UnorderedElementsAre("DejaVu Sans", "DejaVu Sans Mono", "DejaVu Serif", "Noto Color Emoji",
            "Monospace", "Sans Serif", "Serif"));
}

TEST(MessageBus, startsNoServiceOfTheMachine)
{
    const test::MessageBus bus;
    EXPECT_EQ(
        asked(bus, "ListActivatableNames").value(0).toStringList(), QStringList{"org.freedesktop.DBus"});
}

TEST(MessageBus, startsWhatATestOffers)
{
    const test::MessageBus bus;
    const test::ScratchFolder folder;
    const auto program = folder.path() / "program";
    const auto trace = folder.path() / "trace";
    std::ofstream{program} << "#!/bin/sh\ntouch " << trace.string() << "; exit 1\n";
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    bus.offer("org.skyvane.Offered", QString::fromStdString(program.string()));
    asked(bus, "StartServiceByName", {"org.skyvane.Offered", 0U});
    EXPECT_TRUE(test::waitFor([&] { return std::filesystem::exists(trace); }));
}

} // namespace skyvane
