#include "host/service/supervisor.h"

#include "platform/files/files.h"
#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace skyvane {

namespace {

using namespace std::chrono_literals;

/// A supervisor in a process of its own, whose works write down when they start.
class SupervisorTest : public testing::Test {
protected:
    /// What the supervisor ends with. `ends`: how the works end, one after another, the last again and again.
    int supervise(const std::vector<std::function<int()>>& ends, const std::function<bool()>& isDisplayThere)
    {
        const Supervisor::Limits limits{
            .displayIsAwaited = 300ms, .shortestRun = 0ms, .restarts = 3, .soundRun = 60s, .pause = 1ms};
        return Supervisor::run(
            [&](bool isRestart) {
                const std::size_t run = starts().size();
                std::ofstream{file, std::ios::app} << (isRestart ? 'r' : 's');
                std::_Exit(ends.at(std::min(run, ends.size() - 1))());
                return 0;
            },
            isDisplayThere, limits);
    }

    /// A letter a start: "s", after that "r".
    std::string starts() const { return Files::read(file, 4096).value_or(""); }

    static int fail() { return 1; }
    static int succeed() { return 0; }
    static int crash()
    {
        std::signal(SIGTERM, SIG_DFL);
        ::kill(::getpid(), SIGTERM);
        ::pause();
        return 0;
    }

    test::ScratchFolder folder;
    std::filesystem::path file = folder.path() / "starts";
    const std::function<bool()> always = [] { return true; };
};

} // namespace

TEST_F(SupervisorTest, aWorkThatEndsWellHasEnded)
{
    EXPECT_EQ(supervise({succeed}, always), 0);
    EXPECT_EQ(starts(), "s");
}

TEST_F(SupervisorTest, afterAFailureOrASignalItIsDoneAgain)
{
    EXPECT_EQ(supervise({fail, crash, succeed}, always), 0);
    EXPECT_EQ(starts(), "srr");
}

TEST_F(SupervisorTest, whatFailsAgainAndAgainIsGivenUp)
{
    EXPECT_EQ(supervise({fail}, always), 1);
    EXPECT_EQ(starts(), "srrr");
}

TEST_F(SupervisorTest, aDisplayIsAwaitedForSomeTime)
{
    int looks = 0;
    EXPECT_EQ(supervise({fail, succeed}, [&] { return ++looks == 2; }), 0);
    EXPECT_EQ(starts(), "sr");
    EXPECT_EQ(supervise({fail}, [] { return false; }), 1);
    EXPECT_EQ(starts(), "srs");
}

TEST_F(SupervisorTest, whatFailsAsItStartsForTheFirstTimeIsNotDoneAgain)
{
    EXPECT_EQ(Supervisor::run(
                  [&](bool) {
                      std::ofstream{file, std::ios::app} << 's';
                      std::_Exit(7);
                      return 0;
                  },
                  always, {}),
        7);
    EXPECT_EQ(starts(), "s");
}

TEST_F(SupervisorTest, aSignalToTheSupervisorEndsTheWork)
{
    const pid_t supervisor = ::fork();
    if (supervisor == 0)
        std::_Exit(supervise({[this] {
            std::ofstream{folder.path() / "pid"} << ::getpid() << std::flush;
            ::pause();
            return 0;
        }},
            always));
    std::optional<std::string> work;
    while (!work || work->empty()) {
        work = Files::read(folder.path() / "pid", 64);
        std::this_thread::sleep_for(1ms);
    }
    ::kill(supervisor, SIGTERM);
    int status = 0;
    ::waitpid(supervisor, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 128 + SIGTERM);
    EXPECT_EQ(starts(), "s");
    EXPECT_NE(::kill(std::stoi(*work), 0), 0);
}

} // namespace skyvane
