#include "widgets/extension/confinement.h"

#include "platform/sandbox/file_access.h"
#include "platform/sandbox/system_call_filter.h"
#include "platform/sanitized.h"
#include "widgets/extension/allowed_calls.h"
#include "widgets/extension/readable_files.h"
#include "widgets/extension/shut_doors.h"

#include <pthread.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>

#ifdef SKYVANE_SANITIZED
/// Looking for leaks at the end takes a second process that traces this one.
extern "C" int __lsan_is_turned_off()
{
    return 1;
}
#endif

namespace skyvane::Extension {

namespace {

void limit(__rlimit_resource resource, rlim_t most)
{
    const rlimit both{.rlim_cur = most, .rlim_max = most};
    setrlimit(resource, &both);
}

void limitResources()
{
    constexpr rlim_t tenMinutes = 600;
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_CPU, tenMinutes);
    struct stat output { };
    const bool answersIntoFile = fstat(STDOUT_FILENO, &output) == 0 && S_ISREG(output.st_mode);
    if (!answersIntoFile)
        limit(RLIMIT_FSIZE, 0);
#ifndef SKYVANE_SANITIZED // Sanitizers reserve more than any machine has.
    constexpr rlim_t gibibyte = rlim_t{1} << 30;
    constexpr std::size_t threadStack = std::size_t{1} << 20; // 64 requests, and their look-ups, must fit.
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, threadStack);
    pthread_setattr_default_np(&attributes);
    pthread_attr_destroy(&attributes);
    limit(RLIMIT_DATA, gibibyte);
#endif
}

void closeAllBut(int kept)
{
    constexpr unsigned firstAfterStandardStreams = 3;
    const auto close = [](unsigned first, unsigned last) {
        if (first <= last)
            syscall(SYS_close_range, first, last, 0);
    };
    const auto number = static_cast<unsigned>(kept);
    close(firstAfterStandardStreams, number - 1); // All of them where none is kept.
    if (kept >= 0)
        close(number + 1, ~0U);
}

/// What both processes give up, and what the kernel wants to hear before it takes more.
void giveUpTheRest(int kept)
{
    closeAllBut(kept);
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    limitResources();
}

} // namespace

bool confine(int kept, Unlisted unlisted)
{
    giveUpTheRest(kept);
    if (!SystemCallFilter::isOffered())
        return false; // It looks names up and connects by itself then, for which it needs what it would lose.
    FileAccess::restrict(ReadableFiles::ofDecoder(), FileAccess::Connections::none);
    return allowDecodersCallsOnly(unlisted == Unlisted::refused ? SystemCallFilter::failure(EPERM)
                                                                : SystemCallFilter::Answer::reported);
}

bool confineConnector(int kept)
{
    giveUpTheRest(kept);
    FileAccess::restrict(ReadableFiles::ofConnector(), FileAccess::Connections::toAnybody);
    return ShutDoors::shut();
}

} // namespace skyvane::Extension
