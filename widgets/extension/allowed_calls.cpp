#include "widgets/extension/allowed_calls.h"

#include <fcntl.h>
#include <linux/futex.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <initializer_list>
#include <utility>

namespace skyvane::Extension {

namespace {

using Answer = SystemCallFilter::Answer;
using Condition = SystemCallFilter::Condition;
using Half = Condition::Half;

constexpr std::array always{
    // Streams and connections.
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
    // What stands about files, and folders.
    SYS_fstat,
    SYS_newfstatat,
    SYS_statx,
    SYS_faccessat,
    SYS_faccessat2,
    SYS_readlinkat,
    SYS_getdents64,
    // Memory.
    SYS_brk,
    SYS_munmap,
    SYS_mremap,
    SYS_madvise,
    // Threads and signals.
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
    // Time, chance, and who this is.
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
#ifdef SYS_open // Of older architectures.
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

/// The libraries know another way, or do without.
constexpr std::array unheardOf{SYS_clone3, SYS_openat2, SYS_io_uring_setup};

/// The HTTP library looks whether there is IPv6, which only the connector needs to know.
constexpr std::array doneWithout{SYS_socket};

void allowReadingOnly(SystemCallFilter& filter, int call, unsigned flags)
{
    constexpr std::uint32_t more = O_ACCMODE | O_CREAT | O_TRUNC | (O_TMPFILE & ~O_DIRECTORY);
    filter.answer(call, {{.argument = flags, .value = 0, .mask = more}}, Answer::allowed);
    filter.answer(call, {}, SystemCallFilter::failure(EPERM));
}

/// The argument is one of these, or has one of these values under the mask.
void allowFew(SystemCallFilter& filter, int call, unsigned argument,
    std::initializer_list<unsigned long> values, std::uint32_t mask = ~std::uint32_t{0})
{
    for (const unsigned long value : values)
        filter.answer(call,
            {{.argument = argument, .value = static_cast<std::uint32_t>(value), .mask = mask}},
            Answer::allowed);
}

void allowOwnMemory(SystemCallFilter& filter)
{
    constexpr std::uint32_t ordinary
        = MAP_FIXED | MAP_FIXED_NOREPLACE | MAP_NORESERVE | MAP_STACK | MAP_DENYWRITE | MAP_POPULATE;
    for (const int kind : {MAP_PRIVATE, MAP_PRIVATE | MAP_ANONYMOUS, MAP_SHARED /* Of a file. */}) {
        filter.answer(SYS_mmap,
            {{.argument = 2, .value = 0, .mask = PROT_EXEC},
                {.argument = 3, .value = static_cast<std::uint32_t>(kind), .mask = ~ordinary}},
            Answer::allowed);
    }
    filter.answer(SYS_mprotect, {{.argument = 2, .value = 0, .mask = ~std::uint32_t{PROT_READ | PROT_WRITE}}},
        Answer::allowed);
}

void allowThreads(SystemCallFilter& filter)
{
    constexpr std::uint32_t thread = CLONE_VM | CLONE_FS | CLONE_FILES | CLONE_SIGHAND | CLONE_THREAD
        | CLONE_SYSVSEM | CLONE_SETTLS | CLONE_PARENT_SETTID | CLONE_CHILD_CLEARTID;
    filter.answer(SYS_clone, {{.argument = 0, .value = thread}}, Answer::allowed);
    allowFew(filter, SYS_futex, 1,
        {FUTEX_WAIT, FUTEX_WAKE, FUTEX_REQUEUE, FUTEX_CMP_REQUEUE, FUTEX_WAKE_OP, FUTEX_WAIT_BITSET,
            FUTEX_WAKE_BITSET},
        static_cast<std::uint32_t>(FUTEX_CMD_MASK));
    filter.answer(SYS_tgkill,
        {{.argument = 0, .value = static_cast<std::uint32_t>(getpid())}}, // Its own end.
        Answer::allowed);
    allowFew(filter, SYS_prctl, 0, {PR_SET_NAME, PR_SET_VMA});
    filter.answer(SYS_prlimit64, // Asking, not setting.
        {{.argument = 0, .value = 0}, {.argument = 2, .value = 0},
            {.argument = 2, .value = 0, .half = Half::high}},
        Answer::allowed);
}

void allowUseOfConnections(SystemCallFilter& filter)
{
    // Nobody is reached by an address; a pair's ends know each other only.
    filter.answer(SYS_sendto, {{.argument = 4, .value = 0}, {.argument = 4, .value = 0, .half = Half::high}},
        Answer::allowed);
    constexpr std::uint32_t kind = 0xf;
    for (const std::uint32_t connected : std::initializer_list<std::uint32_t>{SOCK_STREAM, SOCK_SEQPACKET})
        filter.answer(SYS_socketpair,
            {{.argument = 0, .value = AF_UNIX}, {.argument = 1, .value = connected, .mask = kind}},
            Answer::allowed);
    for (const std::uint32_t option :
        std::initializer_list<std::uint32_t>{TCP_NODELAY, TCP_KEEPIDLE, TCP_KEEPINTVL, TCP_KEEPCNT})
        filter.answer(SYS_setsockopt,
            {{.argument = 1, .value = IPPROTO_TCP}, {.argument = 2, .value = option}}, Answer::allowed);
    filter.answer(SYS_setsockopt,
        {{.argument = 1, .value = SOL_SOCKET}, {.argument = 2, .value = SO_KEEPALIVE}}, Answer::allowed);
    allowFew(filter, SYS_fcntl, 1, {F_GETFD, F_SETFD, F_GETFL, F_DUPFD_CLOEXEC});
    filter.answer(SYS_fcntl,
        {{.argument = 1, .value = F_SETFL}, {.argument = 2, .value = 0, .mask = O_ASYNC}}, Answer::allowed);
    allowFew(filter, SYS_ioctl, 1, {FIONBIO, FIONREAD, TCGETS});
}

} // namespace

bool allowDecodersCallsOnly(SystemCallFilter::Answer forTheRest)
{
    constexpr int newestRefused = 450; // What is newer is not known to be there.
    SystemCallFilter filter;
    filter.answer(always, Answer::allowed);
    allowOwnMemory(filter);
    allowThreads(filter);
    allowUseOfConnections(filter);
    allowReadingOnly(filter, SYS_openat, 2);
#ifdef SYS_open
    allowReadingOnly(filter, SYS_open, 1);
#endif
    filter.answer(unheardOf, SystemCallFilter::failure(ENOSYS));
    filter.answer(doneWithout, SystemCallFilter::failure(EPERM));
    // Some versions of the HTTP library connect what they are told is connected: that it is under way makes
    // them look whether it is done.
    filter.answer(SYS_connect, {}, SystemCallFilter::failure(EINPROGRESS));
    filter.answerAbove(newestRefused, SystemCallFilter::failure(ENOSYS));
    return std::move(filter).enforce(forTheRest);
}

} // namespace skyvane::Extension
