#include "platform/sandbox/system_call_filter.h"
#include "tests/support/process_status.h"
#include "tests/widgets/extension/own_process.h"
#include "tests/widgets/extension/scenario.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace skyvane::test {

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

/// A host that starts the program with a pipe as its input, tells its number, and waits to be killed.
[[noreturn]] void playHost(int report)
{
    std::array<int, 2> input{};
    static_cast<void>(pipe2(input.data(), O_CLOEXEC));
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input[0], STDIN_FILENO);
    std::string program = SKYVANE_WIDGETS_PROGRAM;
    const std::array<char*, 2> arguments{program.data(), nullptr};
    const std::array<char*, 1> environment{nullptr};
    pid_t process = -1;
    posix_spawn(&process, program.c_str(), &actions, nullptr, arguments.data(), environment.data());
    static_cast<void>(write(report, &process, sizeof process));
    while (true)
        pause();
}

/// Whether it ends within ten seconds; this process must be the one that it is left to.
bool ends(pid_t process)
{
    const auto deadline = steady_clock::now() + 10s;
    while (steady_clock::now() < deadline) {
        if (waitpid(process, nullptr, WNOHANG) == process)
            return true;
        std::this_thread::sleep_for(10ms);
    }
    return false;
}

/// The connector of the program, once it is confined.
pid_t waitForConnector(pid_t program)
{
    const auto deadline = steady_clock::now() + 10s;
    while (steady_clock::now() < deadline) {
        const std::vector<pid_t> children = ProcessStatus::children(program);
        if (!children.empty() && ProcessStatus::line(program, "Seccomp") == "2"
            && ProcessStatus::line(children.front(), "Seccomp") == "2")
            return children.front();
        std::this_thread::sleep_for(10ms);
    }
    return -1;
}

/// A kernel that has neither filters nor Landlock, as far as the calling thread can tell, and what it starts.
void takeNothing()
{
    constexpr std::array refused{SYS_seccomp, SYS_landlock_create_ruleset, SYS_landlock_restrict_self};
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    SystemCallFilter filter;
    filter.answer(refused, SystemCallFilter::failure(ENOSYS));
    std::move(filter).enforce(SystemCallFilter::Answer::allowed);
}

/// One that has filters alone.
void takeNoRestrictionOfFiles()
{
    constexpr std::array refused{SYS_landlock_create_ruleset, SYS_landlock_restrict_self};
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    SystemCallFilter filter;
    filter.answer(refused, SystemCallFilter::failure(EOPNOTSUPP));
    std::move(filter).enforce(SystemCallFilter::Answer::allowed);
}

/// A kernel that lacks something.
struct Kernel {
    const char* name;
    void (*prepare)();
};

struct Prepared {
    explicit Prepared(void (*prepare)()) : environment({.prepare = prepare}) { }

    ProgramEnvironment environment;
};

class OnAKernel : private Prepared, public ExtensionScenario, public testing::WithParamInterface<Kernel> {
protected:
    OnAKernel() : Prepared(GetParam().prepare) { }
};

} // namespace

TEST_P(OnAKernel, itServesAllTheSame)
{
    setHome();
    stage.server().answer(firstSource, {.body = twoNearHome});
    EXPECT_EQ(timeline().size(), 2U);
    EXPECT_EQ(timeline().size(), 2U);
    EXPECT_EQ(stage.server().connectionCount(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Extension, OnAKernel,
    testing::Values(Kernel{"withoutFiltersAndLandlock", &takeNothing},
        Kernel{"withoutLandlock", &takeNoRestrictionOfFiles}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST_F(ExtensionScenario, theProgramAndItsConnectorServeInConfinement)
{
    expectStillAnswers();
    const pid_t process = ProcessStatus::children().at(0);
    const std::vector<pid_t> connectors = ProcessStatus::children(process);
    ASSERT_EQ(connectors.size(), 1U);
    for (const pid_t confined : {process, connectors[0]}) {
        EXPECT_EQ(ProcessStatus::line(confined, "NoNewPrivs"), "1");
        EXPECT_EQ(ProcessStatus::line(confined, "Seccomp"), "2");
    }
}

TEST_F(ExtensionScenario, oneThatIsStoppedEndsSomeSecondsAfterItsInput)
{
    expectStillAnswers();
    kill(ProcessStatus::children().at(0), SIGSTOP);
    const auto start = steady_clock::now();
    stage.closeInput();
    EXPECT_EQ(stage.exitStatus(20s), -SIGKILL);
    EXPECT_GE(steady_clock::now() - start, 4s) << "a healthy one has its time";
}

TEST_F(ExtensionScenario, aRadiusThatFitsNoNumberStopsIt)
{
    stage.setConfiguration(R"({"home":{"latitude":51.5,"longitude":-0.12,"label":"Home"},"radiusNM":1e308})");
    stage.ask(1, "widgets.placeholder", radar);
    EXPECT_EQ(stage.hear()["id"], 1);
    stage.ask(2, "widgets.timeline", radar);
    EXPECT_EQ(stage.exitStatus(20s), -SIGABRT);
}

TEST(ExtensionProgram, doesNotOutliveAHostThatIsKilledWhileEverythingIsStopped)
{
    prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0);
    std::array<int, 2> report{};
    ASSERT_EQ(pipe2(report.data(), O_CLOEXEC), 0);
    const pid_t host = fork();
    ASSERT_GE(host, 0);
    if (host == 0)
        playHost(report[1]);
    pid_t program = -1;
    ASSERT_EQ(read(report[0], &program, sizeof program), static_cast<ssize_t>(sizeof program));
    ASSERT_GT(program, 0);
    const pid_t connector = waitForConnector(program);
    ASSERT_GT(connector, 0);
    for (const pid_t stopped : {connector, program})
        kill(stopped, SIGSTOP);
    kill(host, SIGKILL);
    EXPECT_TRUE(ends(host));
    EXPECT_TRUE(ends(program));
    EXPECT_TRUE(ends(connector));
    prctl(PR_SET_CHILD_SUBREAPER, 0, 0, 0, 0);
    close(report[0]);
    close(report[1]);
}

} // namespace skyvane::test
