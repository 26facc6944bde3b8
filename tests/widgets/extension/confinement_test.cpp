#include "tests/widgets/extension/confined.h"

#include "platform/sandbox/file_access.h"
#include "platform/sandbox/system_call_filter.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <array>
#include <cstdlib>
#include <string>
#include <thread>
#include <utility>

namespace skyvane::Extension {

namespace {

constexpr std::size_t page = 4096;

/// What opening for reading comes to where the kernel has Landlock, and where it has not.
int unreadable()
{
    return FileAccess::version() > 0 ? EACCES : 0;
}

/// What the attempt comes to in a process that was confined before the change.
int afterAChange(const std::function<void()>& change, const std::function<int()>& attempt)
{
    std::array<int, 2> confined{};
    std::array<int, 2> changed{};
    if (pipe(confined.data()) != 0 || pipe(changed.data()) != 0)
        return -1;
    char byte = 0;
    const pid_t child = fork();
    if (child == 0) {
        dup2(changed[0], STDIN_FILENO);
        confine(confined[1]);
        const bool isTime = write(confined[1], "x", 1) == 1 && read(STDIN_FILENO, &byte, 1) == 1;
        _exit(isTime ? attempt() : 200);
    }
    close(confined[1]);
    const bool isConfined = read(confined[0], &byte, 1) == 1;
    change();
    const bool isTold = write(changed[1], "x", 1) == 1;
    int status = 0;
    waitpid(child, &status, 0);
    for (const int end : {confined[0], changed[0], changed[1]})
        close(end);
    return isConfined && isTold && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int map(int protection, int flags)
{
    return mmap(nullptr, page, protection, flags, -1, 0) == MAP_FAILED ? errno : 0;
}

std::vector<Door> doorsOfMemory()
{
    return {
        {"sharedWithNobody", [] { return map(PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS); }},
        {"sharedToRead", [] { return map(PROT_READ, MAP_SHARED | MAP_ANONYMOUS); }},
        {"stackThatIsNotCounted",
            [] { return map(PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_GROWSDOWN); }},
        {"programText", [] { return map(PROT_READ | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS); }},
        {"dataMadeProgramText",
            [] {
                void* data = mmap(nullptr, page, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
                return errorOf(mprotect(data, page, PROT_READ | PROT_EXEC));
            }},
        {"changeALimit",
            [] {
                rlimit limit{};
                getrlimit(RLIMIT_STACK, &limit);
                return errorOf(setrlimit(RLIMIT_STACK, &limit));
            }},
    };
}

} // namespace

TEST_F(ConfinementTest, itReadsItsConfigurationAndNoOtherFile)
{
    const std::filesystem::path secret = scratch.path() / "home/.ssh";
    std::filesystem::create_directory(secret);
    std::ofstream{secret / "id"} << "secret";
    const auto reading = [](const std::filesystem::path& file) {
        return inConfinement([&] { return errorOf(open(file.c_str(), O_RDONLY)); });
    };
    EXPECT_EQ(reading(configuration), 0);
    EXPECT_EQ(reading(secret / "id"), unreadable());
    EXPECT_EQ(reading("file"), unreadable());
    EXPECT_EQ(reading("/etc/passwd"), unreadable());
    EXPECT_EQ(reading("/proc/self/environ"), unreadable());
    EXPECT_EQ(reading("/proc/" + std::to_string(getpid()) + "/mem"), unreadable());
    EXPECT_EQ(reading("/etc/ssl/openssl.cnf"), 0);
    EXPECT_EQ(reading("/usr/share/zoneinfo/Europe/Paris"), 0);
}

TEST_F(ConfinementTest, itReadsAConfigurationThatReplacesTheOneItStartedWithOrIsALink)
{
    const std::filesystem::path elsewhere = scratch.path() / "elsewhere";
    std::filesystem::create_directory(elsewhere);
    std::ofstream{elsewhere / "linked"} << "content";
    std::filesystem::remove(configuration);
    std::filesystem::create_symlink(elsewhere / "linked", configuration);
    EXPECT_EQ(inConfinement([&] { return errorOf(open(configuration.c_str(), O_RDONLY)); }), 0);

    EXPECT_EQ(afterAChange(
                  [&] {
                      std::ofstream{configuration.parent_path() / "draft"} << "newer";
                      std::filesystem::rename(configuration.parent_path() / "draft", configuration);
                  },
                  [&] { return errorOf(open(configuration.c_str(), O_RDONLY)); }),
        0);
}

TEST_F(ConfinementTest, itReadsAConfigurationWhoseFolderIsMadeLater)
{
    std::filesystem::remove_all(scratch.path() / "home/Library");
    EXPECT_EQ(inConfinement([] { return errorOf(open("file", O_RDONLY)); }), unreadable());
    EXPECT_EQ(afterAChange(
                  [&] {
                      std::filesystem::create_directories(configuration.parent_path());
                      std::ofstream{configuration} << "content";
                  },
                  [&] { return errorOf(open(configuration.c_str(), O_RDONLY)); }),
        0);
}

TEST_F(ConfinementTest, memoryIsNeitherSharedNorMadeProgramText)
{
    expectShut(doorsOfMemory());
    expectOpenOutside(doorsOfMemory());
}

TEST_F(ConfinementTest, readingThreadsAndPairsStay)
{
    const auto work = [this] {
        std::string word;
        std::ifstream{configuration} >> word;
        if (word != "content")
            return 1;
        bool hasRun = false;
        std::thread{[&] { hasRun = true; }}.join();
        std::array<int, 2> ends;
        if (!hasRun || pipe2(ends.data(), O_CLOEXEC) != 0 || write(ends[1], "x", 1) != 1)
            return 2;
        return socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) == 0 ? 0 : 3;
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

TEST_F(ConfinementTest, whatWasOpenBesideTheStandardStreamsIsClosedButForWhatIsKept)
{
    const int first = open("file", O_RDONLY);
    const int kept = open("file", O_RDONLY);
    const int last = open("file", O_RDONLY);
    EXPECT_EQ(inChild([&] {
        confine(kept);
        const auto isOpen = [](int number) { return fcntl(number, F_GETFD) >= 0; };
        return isOpen(kept) && !isOpen(first) && !isOpen(last) ? 0 : 1;
    }),
        0);
    for (const int number : {first, kept, last})
        close(number);
}

TEST_F(ConfinementTest, privilegesAreNeverGainedAndResourcesAreBounded)
{
    const auto most = [](__rlimit_resource resource) {
        rlimit limit{};
        getrlimit(resource, &limit);
        return limit.rlim_max;
    };
    EXPECT_EQ(inConfinement([&] { return most(RLIMIT_CORE) == 0 && most(RLIMIT_CPU) == 600 ? 1 : 0; }), 1);
    EXPECT_EQ(inConnectorsConfinement([] { return prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0); }), 1);
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

TEST_F(ConfinementTest, aKernelThatTakesNothingIsSaidAndLeavesEverythingElse)
{
    const auto takeNothing = [] {
        constexpr std::array refused{SYS_seccomp, SYS_landlock_create_ruleset, SYS_landlock_restrict_self};
        prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
        SystemCallFilter filter;
        filter.answer(refused, SystemCallFilter::failure(ENOSYS));
        return std::move(filter).enforce(SystemCallFilter::Answer::allowed);
    };
    for (const auto& confined : {+[] { return confine(); }, +[] { return confineConnector(-1); }}) {
        EXPECT_EQ(inChild([&] {
            if (!takeNothing() || confined())
                return 1;
            return prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0) == 1 ? errorOf(open("file", O_RDONLY)) : 2;
        }),
            0);
    }
}

} // namespace skyvane::Extension
