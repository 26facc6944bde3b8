#include "companion/photo/decoder/confinement.h"

#include "platform/sandbox/system_call_filter.h"
#include "tests/support/scratch_folder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace skyvane {

namespace {

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

/// The same behind the doors that the decoder shuts.
int inConfinement(const std::function<int()>& attempt)
{
    constexpr int notConfined = 200;
    return inChild([&] { return PhotoDecoder::confine() ? attempt() : notConfined; });
}

int errorOf(long outcome)
{
    return outcome < 0 ? errno : 0;
}

/// Past the newest that any kernel has.
constexpr long callsTried = 700;

/// What is left; what a sanitizer needs besides; and the two with which the kernel's own probes return from
/// code that they have put in place, which pass every filter (335 and 336) and end a process that has none.
constexpr std::array<long, 13> allowed{SYS_read, SYS_write, SYS_mmap, SYS_brk, SYS_munmap, SYS_mremap,
    SYS_madvise, SYS_futex, SYS_exit, SYS_exit_group, SYS_sigaltstack, 335, 336};

struct Door {
    const char* name;
    std::function<int()> open;
};

std::vector<Door> doors()
{
    return {
        {"openAFile", [] { return errorOf(open("file", O_RDONLY)); }},
        {"openTheFolderOfProcesses", [] { return errorOf(open("/proc/self/mem", O_RDONLY)); }},
        {"connect", [] { return errorOf(socket(AF_INET, SOCK_STREAM, 0)); }},
        {"speakToABus", [] { return errorOf(socket(AF_UNIX, SOCK_STREAM, 0)); }},
        {"startAProgram", [] { return errorOf(execl("/bin/true", "true", nullptr)); }},
        {"fork", [] { return errorOf(syscall(SYS_clone, SIGCHLD, 0, 0, 0, 0)); }},
        {"signalTheCompanion", [] { return errorOf(kill(getppid(), 0)); }},
        {"signalItself", [] { return errorOf(raise(0)); }},
        {"makeCode",
            [] {
                return errorOf(reinterpret_cast<long>(
                    mmap(nullptr, 4096, PROT_READ | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)));
            }},
        {"shareMemory",
            [] {
                return errorOf(reinterpret_cast<long>(
                    mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)));
            }},
        {"readWhatIsNotItsInput", [] { return errorOf(syscall(SYS_read, STDOUT_FILENO, nullptr, 0)); }},
        {"writeWhatIsNotItsOutput", [] { return errorOf(syscall(SYS_write, STDIN_FILENO, "", 0)); }},
        {"gainBackItsLimits",
            [] {
                const rlimit limit{.rlim_cur = 5, .rlim_max = 5};
                return errorOf(setrlimit(RLIMIT_NOFILE, &limit));
            }},
    };
}

class PhotoConfinement : public testing::Test {
protected:
    PhotoConfinement()
    {
        std::ofstream{scratch.path() / "file"} << "content";
        std::filesystem::current_path(scratch.path());
    }
    ~PhotoConfinement() override { std::filesystem::current_path("/"); }

    test::ScratchFolder scratch;
};

} // namespace

TEST_F(PhotoConfinement, everyCallButTheAllowedOnesIsRefused)
{
    EXPECT_EQ(inConfinement([] {
        for (long call = 0; call < callsTried; ++call) {
            if (std::ranges::find(allowed, call) != allowed.end())
                continue;
            errno = 0;
            if (syscall(call, 0, 0, 0, 0, 0, 0) != -1 || errno != EPERM)
                return 1;
        }
        return 0;
    }),
        0);
}

TEST_F(PhotoConfinement, noDoorIsOpen)
{
    for (const Door& door : doors())
        EXPECT_EQ(inConfinement(door.open), EPERM) << door.name;
}

TEST_F(PhotoConfinement, readingItsInputWritingItsOutputAndMemoryStay)
{
    std::array<int, 2> input;
    std::array<int, 2> output;
    ASSERT_EQ(pipe(input.data()), 0);
    ASSERT_EQ(pipe(output.data()), 0);
    ASSERT_EQ(write(input[1], "x", 1), 1);
    EXPECT_EQ(inChild([&] {
        dup2(input[0], STDIN_FILENO);
        dup2(output[1], STDOUT_FILENO);
        if (!PhotoDecoder::confine())
            return 1;
        char byte = 0;
        if (read(STDIN_FILENO, &byte, 1) != 1 || write(STDOUT_FILENO, &byte, 1) != 1)
            return 2;
        std::vector<char> memory(std::size_t{32} << 20, byte);
        return memory.back() == 'x' ? 0 : 3;
    }),
        0);
    char byte = 0;
    EXPECT_EQ(read(output[0], &byte, 1), 1);
    EXPECT_EQ(byte, 'x');
    for (const int end : {input[0], input[1], output[0], output[1]})
        close(end);
}

TEST_F(PhotoConfinement, whatElseWasOpenIsClosed)
{
    std::array<int, 2> input;
    std::array<int, 2> other;
    ASSERT_EQ(pipe(input.data()), 0);
    ASSERT_EQ(pipe(other.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        dup2(input[0], STDIN_FILENO);
        close(input[1]);
        char byte = 0;
        _exit(PhotoDecoder::confine() ? static_cast<int>(read(STDIN_FILENO, &byte, 1)) : 1);
    }
    close(input[0]);
    close(other[1]);
    char byte = 0;
    EXPECT_EQ(read(other[0], &byte, 1), 0); // The end of it, while the child waits for its input.
    EXPECT_EQ(waitpid(child, nullptr, WNOHANG), 0);
    close(input[1]);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    close(other[0]);
}

TEST_F(PhotoConfinement, aKernelThatTakesNoFilterIsSaid)
{
    const auto refuseFilters = [] {
        constexpr std::array refused{SYS_seccomp};
        prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
        SystemCallFilter filter;
        filter.answer(refused, SystemCallFilter::failure(ENOSYS));
        return std::move(filter).enforce(SystemCallFilter::Answer::allowed);
    };
    EXPECT_EQ(inChild([&] { return refuseFilters() && !PhotoDecoder::confine() ? 0 : 1; }), 0);
}

} // namespace skyvane
