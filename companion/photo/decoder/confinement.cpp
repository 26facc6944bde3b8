#include "companion/photo/decoder/confinement.h"

#include "platform/sandbox/file_access.h"
#include "platform/sandbox/system_call_filter.h"
#include "platform/sanitized.h"

#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#ifdef SKYVANE_SANITIZED
/// Looking for leaks at the end takes a second process that traces this one.
extern "C" int __lsan_is_turned_off()
{
    return 1;
}
#endif

namespace skyvane::PhotoDecoder {

namespace {

#ifdef SKYVANE_SANITIZED
constexpr rlim_t secondsOfProcessor = 40; // Several times slower, and not optimised.
constexpr rlim_t memory = RLIM_INFINITY;
#else
constexpr rlim_t secondsOfProcessor = 2;
constexpr rlim_t memory = rlim_t{256} << 20;
#endif

bool limit(__rlimit_resource resource, rlim_t most)
{
    const rlimit both{.rlim_cur = most, .rlim_max = most};
    return setrlimit(resource, &both) == 0;
}

/// Whatever is not said here fails with "not permitted".
bool giveUpCalls()
{
    constexpr auto allowed = SystemCallFilter::Answer::allowed;
    constexpr std::array plain{
        SYS_brk, SYS_munmap, SYS_mremap, SYS_madvise, SYS_futex, SYS_exit, SYS_exit_group};
    SystemCallFilter filter;
    filter.answer(plain, allowed);
    filter.answer(SYS_read, {{.argument = 0, .value = STDIN_FILENO}}, allowed);
    filter.answer(SYS_write, {{.argument = 0, .value = STDOUT_FILENO}}, allowed);
    filter.answer(SYS_mmap,
        {{.argument = 2, .value = 0, .mask = PROT_EXEC}, {.argument = 3, .value = 0, .mask = MAP_SHARED}},
        allowed);
#ifdef SKYVANE_SANITIZED // What the sanitizer says, and how it prepares to.
    filter.answer(SYS_write, {{.argument = 0, .value = STDERR_FILENO}}, allowed);
    filter.answer(SYS_sigaltstack, {}, allowed);
#endif
    return SystemCallFilter::isOffered() && std::move(filter).enforce(SystemCallFilter::failure(EPERM));
}

} // namespace

bool confine()
{
    const bool isBound = prctl(PR_SET_PDEATHSIG, SIGKILL, 0, 0, 0) == 0
        && syscall(SYS_close_range, STDERR_FILENO + 1, ~0U, 0) == 0
        && prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
    // A kernel without Landlock is none the worse: no call that is left could open anything.
    FileAccess::restrict({}, FileAccess::Connections::none);
    const bool isLimited = limit(RLIMIT_CORE, 0) && limit(RLIMIT_FSIZE, 0) && limit(RLIMIT_NOFILE, 0)
        && limit(RLIMIT_CPU, secondsOfProcessor) && limit(RLIMIT_AS, memory);
    return isBound && isLimited && giveUpCalls();
}

} // namespace skyvane::PhotoDecoder
