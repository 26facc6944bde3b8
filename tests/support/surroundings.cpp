#include "tests/support/surroundings.h"

#include "tests/support/scratch_folder.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <map>
#include <string>
#include <string_view>
#include <unistd.h>

namespace skyvane::test {

namespace {

bool isForTests(std::string_view variable)
{
    constexpr std::array<std::string_view, 8> prefixes{"ASAN_OPTIONS=", "UBSAN_OPTIONS=", "LSAN_OPTIONS=",
        "TSAN_OPTIONS=", "GTEST_", "SKYVANE_", "TMPDIR=", "GCOV_"};
    return std::ranges::any_of(
        prefixes, [&](std::string_view prefix) { return variable.starts_with(prefix); });
}

std::map<std::string, std::string> kept()
{
    std::map<std::string, std::string> variables;
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        const std::string_view variable{*entry};
        if (isForTests(variable)) {
            const auto end = variable.find('=');
            variables.emplace(variable.substr(0, end), variable.substr(end + 1));
        }
    }
    return variables;
}

} // namespace

void enterOwnSurroundings()
{
    static const ScratchFolder folder;
    const auto home = folder.path() / "home";
    const auto runtime = folder.path() / "run";
    std::filesystem::create_directory(home);
    std::filesystem::create_directory(runtime);
    std::filesystem::permissions(runtime, std::filesystem::perms::owner_all);

    auto variables = kept();
    const std::string nobody = "unix:path=" + (folder.path() / "nobody").string();
    variables.merge(std::map<std::string, std::string>{
        {"PATH", "/usr/bin:/bin"},
        {"HOME", home.string()},
        {"XDG_RUNTIME_DIR", runtime.string()},
        {"XDG_CONFIG_DIRS", (folder.path() / "none").string()},
        {"DBUS_SESSION_BUS_ADDRESS", nobody},
        {"DBUS_SYSTEM_BUS_ADDRESS", nobody},
        {"FONTCONFIG_FILE", SKYVANE_TEST_FONTS},
        {"GIO_USE_VFS", "local"},
        {"GSETTINGS_BACKEND", "memory"},
        {"LANG", "C.UTF-8"},
        {"QT_QPA_PLATFORM", "offscreen"},
        {"TZ", "UTC"},
    });
    clearenv();
    for (const auto& [name, value] : variables)
        setenv(name.c_str(), value.c_str(), 1);
    tzset();
}

} // namespace skyvane::test
