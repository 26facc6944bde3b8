#include "widgets/extension/confinement.h"

#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <linux/sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace skyvane::Extension {

namespace {

/// What a call returned, as 0 or the error's number.
int errorOf(long outcome)
{
    return outcome < 0 ? errno : 0;
}

/// What the attempt comes to in a process of its own.
int inChild(const std::function<int()>& attempt)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(attempt());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

int inConfinement(const std::function<int()>& attempt)
{
    constexpr int notConfined = 200;
    return inChild([&] { return confine() ? attempt() : notConfined; });
}

struct Door {
    const char* name;
    std::function<int()> open;
    int error = EPERM;
};

int tryNewProcess(long child)
{
    if (child == 0)
        _exit(0);
    return errorOf(child);
}

/// Each works outside, with these files: "file" and "folder".
std::vector<Door> doorsOfFiles()
{
    return {
        {"openToWrite", [] { return errorOf(open("file", O_WRONLY)); }},
        {"openToReadAndWrite", [] { return errorOf(open("file", O_RDWR)); }},
        {"openToAppend", [] { return errorOf(open("file", O_WRONLY | O_APPEND)); }},
        {"openToCreate", [] { return errorOf(open("new", O_RDONLY | O_CREAT, 0600)); }},
        {"openToEmpty", [] { return errorOf(open("file", O_RDONLY | O_TRUNC)); }},
        {"openUnnamed", [] { return errorOf(open(".", O_TMPFILE | O_RDWR, 0600)); }},
        {"openADevice", [] { return errorOf(open("/dev/null", O_WRONLY)); }},
        {"creat", [] { return errorOf(creat("new", 0600)); }},
        {"unlink", [] { return errorOf(unlink("file")); }},
        {"remove", [] { return errorOf(rmdir("folder")); }},
        {"rename", [] { return errorOf(rename("file", "other")); }},
        {"link", [] { return errorOf(::link("file", "other")); }},
        {"symlink", [] { return errorOf(symlink("file", "other")); }},
        {"mkdir", [] { return errorOf(mkdir("new", 0700)); }},
        {"mkfifo", [] { return errorOf(mkfifo("new", 0600)); }},
        {"truncate", [] { return errorOf(truncate("file", 0)); }},
        {"chmod", [] { return errorOf(chmod("file", 0600)); }},
        {"chown", [] { return errorOf(chown("file", getuid(), getgid())); }},
        {"touch", [] { return errorOf(utimensat(AT_FDCWD, "file", nullptr, 0)); }},
        {"fileInMemory", [] { return errorOf(memfd_create("file", 0)); }},
    };
}

std::vector<Door> doorsOfProcesses()
{
    return {
        {"startAProgram", [] { return errorOf(execl("/bin/true", "true", nullptr)); }},
        {"fork", [] { return tryNewProcess(fork()); }},
        {"vforkByNumber", [] { return tryNewProcess(syscall(SYS_clone, SIGCHLD, 0, 0, 0, 0)); }},
        {"clone3",
            [] {
                clone_args arguments{};
                arguments.exit_signal = SIGCHLD;
                return tryNewProcess(syscall(SYS_clone3, &arguments, sizeof arguments));
            },
            ENOSYS},
        {"beTraced", [] { return errorOf(ptrace(PTRACE_TRACEME, 0, nullptr, nullptr)); }},
        {"readAProcess",
            [] {
                int word = 0;
                const iovec here{.iov_base = &word, .iov_len = sizeof word};
                return errorOf(process_vm_readv(getpid(), &here, 1, &here, 1, 0));
            }},
        {"signalTheHost", [] { return errorOf(kill(getppid(), 0)); }},
        {"signalEverybody", [] { return errorOf(kill(0, 0)); }},
        {"handleOfAProcess", [] { return errorOf(syscall(SYS_pidfd_open, getppid(), 0)); }},
    };
}

std::vector<Door> otherDoors()
{
    return {
        {"listen", [] { return errorOf(listen(socket(AF_INET, SOCK_STREAM, 0), 1)); }},
        {"openat2",
            [] {
                const std::array<std::uint64_t, 3> how{O_RDONLY, 0, 0};
                return errorOf(syscall(SYS_openat2, AT_FDCWD, "file", how.data(), sizeof how));
            },
            ENOSYS},
    };
}

class ConfinementTest : public testing::Test {
protected:
    ConfinementTest()
    {
        std::ofstream{scratch.path() / "file"} << "content";
        std::filesystem::create_directory(scratch.path() / "folder");
        std::filesystem::current_path(scratch.path());
    }
    ~ConfinementTest() override { std::filesystem::current_path("/"); }

    static void expectShut(const std::vector<Door>& doors)
    {
        for (const Door& door : doors)
            EXPECT_EQ(inConfinement(door.open), door.error) << door.name;
    }

    test::ScratchFolder scratch;
};

} // namespace

TEST_F(ConfinementTest, noFileIsWrittenCreatedRemovedOrChanged)
{
    expectShut(doorsOfFiles());
    EXPECT_EQ(std::filesystem::file_size("file"), 7U);
    EXPECT_FALSE(std::filesystem::exists("new"));
}

TEST_F(ConfinementTest, noProgramIsStartedAndNoProcessTouched)
{
    expectShut(doorsOfProcesses());
}

TEST_F(ConfinementTest, nobodyIsListenedTo)
{
    expectShut(otherDoors());
}

TEST_F(ConfinementTest, theSameDoorsAreOpenOutside)
{
    for (const auto& doors : {doorsOfFiles(), doorsOfProcesses(), otherDoors()}) {
        for (const Door& door : doors) {
            std::ofstream{"file"} << "content";
            std::filesystem::create_directory("folder");
            EXPECT_EQ(inChild(door.open), 0) << door.name;
            for (const char* made : {"new", "other"})
                std::filesystem::remove(made);
        }
    }
}

TEST_F(ConfinementTest, readingThreadsSocketsAndPipesStay)
{
    const auto work = [] {
        std::string word;
        std::ifstream{"file"} >> word;
        if (word != "content")
            return 1;
        bool hasRun = false;
        std::thread{[&] { hasRun = true; }}.join();
        std::array<int, 2> ends;
        if (!hasRun || pipe(ends.data()) != 0 || write(ends[1], "x", 1) != 1)
            return 2;
        return socket(AF_INET, SOCK_STREAM, 0) >= 0 && socket(AF_NETLINK, SOCK_RAW, 0) >= 0 ? 0 : 3;
    };
    EXPECT_EQ(inConfinement(work), 0);
}

TEST_F(ConfinementTest, itMayStillEndItself)
{
    EXPECT_EQ(inConfinement([]() -> int {
        std::signal(SIGABRT, SIG_DFL);
        std::abort();
    }),
        -SIGABRT);
}

TEST_F(ConfinementTest, whatWasOpenBesideTheStandardStreamsIsClosed)
{
    const int kept = open("file", O_RDONLY);
    EXPECT_EQ(inConfinement([&] { return errorOf(fcntl(kept, F_GETFD)); }), EBADF);
    close(kept);
}

TEST_F(ConfinementTest, privilegesAreNeverGainedAndResourcesAreBounded)
{
    const auto most = [](__rlimit_resource resource) {
        rlimit limit{};
        getrlimit(resource, &limit);
        return limit.rlim_max;
    };
    EXPECT_EQ(inConfinement([] { return prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0); }), 1);
    EXPECT_EQ(inConfinement([&] { return most(RLIMIT_CORE) == 0 && most(RLIMIT_CPU) == 600; }), 1);
}

TEST_F(ConfinementTest, answersMayGoIntoAFileAndIntoNothingLarger)
{
    const auto fileLimit = [] {
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        return limit.rlim_max == 0 ? 1 : 0;
    };
    const auto answeringInto = [&](const char* place) {
        return inChild([&] {
            dup2(open(place, O_WRONLY), STDOUT_FILENO);
            return confine() ? fileLimit() : -1;
        });
    };
    EXPECT_EQ(answeringInto("/dev/null"), 1);
    EXPECT_EQ(answeringInto("file"), 0);
}

TEST_F(ConfinementTest, aKernelThatTakesNoFilterIsSaidAndLeavesEverythingElse)
{
    const auto refuseFilters = [] {
        scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
        const scmp_arg_cmp asked{.arg = 0, .op = SCMP_CMP_EQ, .datum_a = PR_SET_SECCOMP, .datum_b = 0};
        seccomp_rule_add_array(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(seccomp), 0, nullptr);
        seccomp_rule_add_array(filter, SCMP_ACT_ERRNO(EINVAL), SCMP_SYS(prctl), 1, &asked);
        const bool isRefused = seccomp_load(filter) == 0;
        seccomp_release(filter);
        return isRefused;
    };
    EXPECT_EQ(inChild([&] {
        if (!refuseFilters() || confine())
            return 1;
        return prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0) == 1 ? errorOf(open("file", O_RDONLY)) : 2;
    }),
        0);
}

} // namespace skyvane::Extension
