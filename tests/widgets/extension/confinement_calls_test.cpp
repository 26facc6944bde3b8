#include "tests/widgets/extension/confined.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/syscall.h>

#include <algorithm>
#include <array>
#include <vector>

namespace skyvane::Extension {

namespace {

constexpr int newest = 1023; ///< Of all numbers that a kernel knows, and many more.

/// What the decoder may do whatever the arguments: talk over what is open, look at files' names and sizes,
/// use its own memory and threads, know the time, chance and who it is, and end. Each is here for a reason; a
/// call more is one to think about.
std::vector<long> reviewed()
{
    return {
        SYS_read,
        SYS_write,
        SYS_readv,
        SYS_writev,
        SYS_pread64,
        SYS_lseek,
        SYS_close,
        SYS_ppoll,
        SYS_pipe2,
        SYS_eventfd2,
        SYS_recvfrom,
        SYS_recvmsg,
        SYS_sendmsg,
        SYS_shutdown,
        SYS_getsockname,
        SYS_getpeername,
        SYS_getsockopt,
        SYS_fstat,
        SYS_newfstatat,
        SYS_statx,
        SYS_faccessat,
        SYS_faccessat2,
        SYS_readlinkat,
        SYS_getdents64,
        SYS_brk,
        SYS_munmap,
        SYS_mremap,
        SYS_madvise,
        SYS_set_robust_list,
        SYS_rseq,
        SYS_sched_yield,
        SYS_sched_getaffinity,
        SYS_rt_sigaction,
        SYS_rt_sigprocmask,
        SYS_rt_sigpending,
        SYS_rt_sigtimedwait,
        SYS_rt_sigreturn,
        SYS_sigaltstack,
        SYS_restart_syscall,
        SYS_exit,
        SYS_exit_group,
        SYS_clock_gettime,
        SYS_clock_getres,
        SYS_clock_nanosleep,
        SYS_nanosleep,
        SYS_gettimeofday,
        SYS_getrandom,
        SYS_getpid,
        SYS_gettid,
        SYS_getuid,
        SYS_geteuid,
        SYS_getgid,
        SYS_getegid,
        SYS_uname,
        SYS_sysinfo,
#ifdef SYS_open
        SYS_poll,
        SYS_stat,
        SYS_lstat,
        SYS_access,
        SYS_readlink,
        SYS_time,
        SYS_getrlimit,
        SYS_arch_prctl,
#endif
    };
}

#if defined(__x86_64__)
/// Of the kernel's own tracing points: newer ones ask no filter, and end who calls them from elsewhere.
constexpr std::array tracing{335, 336};
#else
constexpr std::array<int, 0> tracing{};
#endif

/// The numbers, from the first one on, that come to anything but "not permitted" and "unknown" in
/// confinement, each called with the same hostile argument six times.
std::vector<int> answered(int first, int last, long argument)
{
    const std::vector<long> passedOver = reviewed();
    std::array<int, 2> report{};
    if (pipe(report.data()) != 0)
        return {-1};
    inChild([&] {
        if (!confine(report[1]))
            return 1;
        for (int call = first; call <= last; ++call) {
            if (std::ranges::find(passedOver, call) != passedOver.end()
                || std::ranges::find(tracing, call) != tracing.end())
                continue;
            const long outcome = syscall(call, argument, argument, argument, argument, argument, argument);
            const bool isRefused = outcome < 0
                && (errno == EPERM || errno == ENOSYS || (call == SYS_connect && errno == EINPROGRESS));
            if (!isRefused && write(report[1], &call, sizeof call) != sizeof call)
                return 1;
        }
        const int end = -1;
        return write(report[1], &end, sizeof end) == sizeof end ? 0 : 1;
    });
    close(report[1]);
    std::vector<int> calls;
    for (int call = 0; read(report[0], &call, sizeof call) == sizeof call;)
        calls.push_back(call);
    close(report[0]);
    return calls;
}

} // namespace

TEST_F(ConfinementTest, everySystemCallThatNobodyHasReviewedIsRefusedWhateverItsArguments)
{
    EXPECT_EQ(answered(0, newest, -1), std::vector<int>{-1});

    // Those of which an argument is looked at, and is as it may be: an int is 0 of it. The address is
    // nobody's.
    std::vector<int> reached{
#ifdef SYS_open
        SYS_open,
#endif
        SYS_openat, SYS_mprotect, SYS_futex};
    std::ranges::sort(reached);
    reached.push_back(-1);
    EXPECT_EQ(answered(0, newest, 1L << 47), reached);
}

TEST_F(ConfinementTest, theKernelsOwnTracingPointsAreNobodys)
{
    for (const int call : tracing) {
        const int outcome = inConfinement([call] { return errorOf(syscall(call, -1, -1, -1)); });
        EXPECT_THAT(outcome, testing::AnyOf(EPERM, ENOSYS, ENXIO, -SIGILL)) << call;
    }
}

#if defined(__x86_64__)
TEST_F(ConfinementTest, theCallsOfOtherArchitecturesAreNone)
{
    constexpr int x32 = 0x40000000;
    EXPECT_EQ(answered(x32, x32 + newest, -1), std::vector<int>{-1});
    EXPECT_LT(inConfinement([] {
        constexpr long getpid = 20; // Of the 32-bit architecture.
        long outcome = getpid;
        asm volatile("int $0x80" : "+a"(outcome) : : "memory");
        return 0;
    }),
        0);
}
#endif

} // namespace skyvane::Extension
