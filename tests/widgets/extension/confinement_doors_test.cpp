#include "platform/sandbox/file_access.h"
#include "tests/widgets/extension/confined.h"

#include <fcntl.h>
#include <linux/sched.h>
#include <mqueue.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/ipc.h>
#include <sys/mman.h>
#include <sys/msg.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/sem.h>
#include <sys/shm.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/un.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace skyvane::Extension {

namespace {

int tryNewProcess(long child)
{
    if (child == 0)
        _exit(0);
    return errorOf(child);
}

template <class Address>
const sockaddr* generic(const Address& address)
{
    const void* bytes = &address;
    return static_cast<const sockaddr*>(bytes);
}

sockaddr_un named(const char* path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path, sizeof address.sun_path - 1);
    return address;
}

std::array<int, 2> pairOfSockets(int kind)
{
    std::array<int, 2> ends{-1, -1};
    socketpair(AF_UNIX, kind, 0, ends.data());
    return ends;
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
        {"lockAFile", [] { return errorOf(flock(STDERR_FILENO, LOCK_SH | LOCK_NB)); }},
        {"fileInMemory", [] { return errorOf(memfd_create("file", 0)); }},
        {"fileOfASocket",
            [] {
                const sockaddr_un place = named("new");
                return errorOf(bind(pairOfSockets(SOCK_STREAM)[0], generic(place), sizeof place));
            }},
        {"messageQueue",
            [] { // Removed at once where it comes about.
                const mqd_t queue = mq_open("/skyvane-test", O_RDONLY | O_CREAT, 0600, nullptr);
                const int error = errorOf(queue);
                mq_unlink("/skyvane-test");
                return error;
            }},
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
        {"signalAThreadOfTheHost", [] { return errorOf(syscall(SYS_tgkill, getppid(), getppid(), 0)); }},
        {"handleOfAProcess", [] { return errorOf(syscall(SYS_pidfd_open, getppid(), 0)); }},
        {"limitTheHost",
            [] {
                rlimit limit{};
                return errorOf(syscall(SYS_prlimit64, getppid(), RLIMIT_NOFILE, nullptr, &limit));
            }},
        {"scheduleTheHost",
            [] {
                cpu_set_t all;
                CPU_ZERO(&all);
                for (int processor = 0; processor < CPU_SETSIZE; ++processor)
                    CPU_SET(processor, &all);
                return errorOf(sched_setaffinity(getppid(), sizeof all, &all));
            }},
        {"slowTheHost", [] { return errorOf(setpriority(PRIO_PROCESS, static_cast<id_t>(getppid()), 0)); }},
        {"signalByAStream",
            [] { return errorOf(fcntl(pairOfSockets(SOCK_STREAM)[0], F_SETOWN, getppid())); }},
        {"chooseTheSignalOfAStream",
            [] { return errorOf(fcntl(pairOfSockets(SOCK_STREAM)[0], F_SETSIG, SIGKILL)); }},
        {"askAStreamToSignal",
            [] { return errorOf(fcntl(pairOfSockets(SOCK_STREAM)[0], F_SETFL, O_ASYNC)); }},
        {"beSignalledAtTheHostsEnd", [] { return errorOf(prctl(PR_SET_PDEATHSIG, SIGTERM, 0, 0, 0)); }},
        {"memoryOfOthers", [] { return errorOf(shmget(IPC_PRIVATE, 4096, IPC_CREAT | 0600)); }},
        {"semaphoresOfOthers", [] { return errorOf(semget(IPC_PRIVATE, 1, IPC_CREAT | 0600)); }},
        {"messagesOfOthers", [] { return errorOf(msgget(IPC_PRIVATE, IPC_CREAT | 0600)); }},
    };
}

std::vector<Door> doorsOfConnections()
{
    return {
        {"internetSocket", [] { return errorOf(socket(AF_INET, SOCK_STREAM, 0)); }},
        {"internetSocketOfTheNewerKind", [] { return errorOf(socket(AF_INET6, SOCK_DGRAM, 0)); }},
        {"localSocket", [] { return errorOf(socket(AF_UNIX, SOCK_STREAM, 0)); }},
        {"kernelSocket", [] { return errorOf(socket(AF_NETLINK, SOCK_RAW, 0)); }},
        {"pairThatReachesOthers", [] { return pairOfSockets(SOCK_DGRAM)[0] < 0 ? errno : 0; }},
        {"connect",
            [] { // It is said to be under way, and is not. Outside, a pair is connected already.
                const sockaddr_un place = named("nobody");
                const int error
                    = errorOf(connect(pairOfSockets(SOCK_STREAM)[0], generic(place), sizeof place));
                return error == EINPROGRESS ? error : 0;
            },
            EINPROGRESS},
        {"listen",
            [] {
                const int error = errorOf(listen(pairOfSockets(SOCK_STREAM)[0], 1));
                return error == EPERM ? EPERM : 0;
            }},
        {"optionsThatLoadModules",
            [] {
                const int error
                    = errorOf(setsockopt(pairOfSockets(SOCK_STREAM)[0], IPPROTO_TCP, TCP_ULP, "tls", 3));
                return error == EPERM ? EPERM : 0;
            }},
        {"openat2",
            [] {
                const std::array<std::uint64_t, 3> how{O_RDONLY, 0, 0};
                return errorOf(syscall(SYS_openat2, AT_FDCWD, "file", how.data(), sizeof how));
            },
            ENOSYS},
    };
}

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

TEST_F(ConfinementTest, nobodyIsConnectedToOrListenedTo)
{
    expectShut(doorsOfConnections());
}

TEST_F(ConfinementTest, theSameDoorsAreOpenOutside)
{
    for (const auto& doors : {doorsOfFiles(), doorsOfProcesses(), doorsOfConnections()})
        expectOpenOutside(doors);
}

TEST_F(ConfinementTest, theConnectorWritesNoFileAndStartsNoProgramEither)
{
    for (const auto& doors : {doorsOfFiles(), doorsOfProcesses()}) {
        for (const Door& door : doors) {
            const std::string_view name{door.name};
            const bool isItsOwn = name == "askAStreamToSignal" || name == "beSignalledAtTheHostsEnd";
            // Names are given to sockets by a call that look-ups make, too: not the filter's to refuse.
            const bool isOfFiles = name == "fileOfASocket";
            const int error = isItsOwn ? 0 : !isOfFiles ? door.error : FileAccess::version() > 0 ? EACCES : 0;
            EXPECT_EQ(inConnectorsConfinement(door.open), error) << door.name;
            fill();
        }
    }
}

TEST_F(ConfinementTest, theConnectorReadsNothingOfTheUsers)
{
    const auto reading = [](const std::filesystem::path& file) {
        return inConnectorsConfinement([&] { return errorOf(open(file.c_str(), O_RDONLY)) == 0 ? 0 : 1; });
    };
    EXPECT_EQ(reading(configuration), FileAccess::version() > 0 ? 1 : 0);
    EXPECT_EQ(reading("/etc/hosts"), 0);
}

TEST_F(ConfinementTest, theConnectorLooksUpAndConnects)
{
    EXPECT_EQ(inConnectorsConfinement([] {
        return socket(AF_INET, SOCK_STREAM, 0) >= 0 && socket(AF_INET6, SOCK_DGRAM, 0) >= 0
                && socket(AF_NETLINK, SOCK_RAW, 0) >= 0 && socket(AF_UNIX, SOCK_STREAM, 0) >= 0
            ? 0
            : 1;
    }),
        0);
}

} // namespace skyvane::Extension
