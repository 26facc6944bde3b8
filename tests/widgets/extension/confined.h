#pragma once

#include "platform/files/configuration_file.h"
#include "platform/pinned.h"
#include "tests/support/scratch_folder.h"
#include "widgets/extension/confinement.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <vector>

namespace skyvane::Extension {

/// What a call returned, as 0 or the error's number.
inline int errorOf(long outcome)
{
    return outcome < 0 ? errno : 0;
}

/// What the attempt comes to in a process of its own: its result, or the signal that ended it, below zero.
inline int inChild(const std::function<int()>& attempt)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(attempt());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

inline int inConfinement(const std::function<int()>& attempt)
{
    constexpr int notConfined = 200;
    return inChild([&] { return confine() ? attempt() : notConfined; });
}

inline int inConnectorsConfinement(const std::function<int()>& attempt)
{
    constexpr int notConfined = 200;
    return inChild([&] { return confineConnector(-1) ? attempt() : notConfined; });
}

struct Door {
    const char* name;
    std::function<int()> open;
    int error = EPERM; ///< In confinement; outside it opens.
};

/// A home with a configuration, a secret beside it, and the working folder, which has "file" and "folder".
class ConfinementTest : public testing::Test {
protected:
    ConfinementTest()
    {
        std::filesystem::create_directories(configuration.parent_path());
        std::ofstream{configuration} << "content";
        std::filesystem::create_directory(scratch.path() / "work");
        std::filesystem::current_path(scratch.path() / "work");
        fill();
    }
    ~ConfinementTest() override { std::filesystem::current_path("/"); }

    static void fill()
    {
        std::ofstream{"file"} << "content";
        std::filesystem::create_directory("folder");
        for (const char* made : {"new", "other"})
            std::filesystem::remove(made);
    }

    static void expectShut(const std::vector<Door>& doors)
    {
        for (const Door& door : doors)
            EXPECT_EQ(inConfinement(door.open), door.error) << door.name;
    }
    static void expectOpenOutside(const std::vector<Door>& doors)
    {
        for (const Door& door : doors) {
            fill();
            EXPECT_EQ(inChild(door.open), 0) << door.name;
        }
    }

    test::ScratchFolder scratch;
    Pinned<HomeFolder> home{{.path = scratch.path() / "home"}};
    const std::filesystem::path configuration = Files::configurationFile();
};

} // namespace skyvane::Extension
