#include "widgets/extension/confinement.h"

#include "widgets/extension/shut_doors.h"

#include <seccomp.h>

#include <fcntl.h>
#include <pthread.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>

#ifndef __has_feature
#define __has_feature(feature) 0
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || __has_feature(address_sanitizer)        \
    || __has_feature(thread_sanitizer)
#define SKYVANE_SANITIZED
/// Looking for leaks at the end takes a second process that traces this one.
extern "C" int __lsan_is_turned_off()
{
    return 1;
}
#endif

namespace skyvane::Extension {

namespace {

bool limit(__rlimit_resource resource, rlim_t most)
{
    const rlimit both{.rlim_cur = most, .rlim_max = most};
    return setrlimit(resource, &both) == 0;
}

bool limitResources()
{
    constexpr rlim_t tenMinutes = 600;
    bool isLimited = limit(RLIMIT_CORE, 0) && limit(RLIMIT_CPU, tenMinutes);
    struct stat output { };
    const bool answersIntoFile = fstat(STDOUT_FILENO, &output) == 0 && S_ISREG(output.st_mode);
    if (!answersIntoFile)
        isLimited = limit(RLIMIT_FSIZE, 0) && isLimited;
#ifndef SKYVANE_SANITIZED // Sanitizers reserve more than any machine has.
    constexpr rlim_t gibibyte = rlim_t{1} << 30;
    constexpr std::size_t threadStack = std::size_t{1} << 20; // 64 requests and their look-ups must fit.
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, threadStack);
    pthread_setattr_default_np(&attributes);
    pthread_attr_destroy(&attributes);
    isLimited = limit(RLIMIT_DATA, gibibyte) && isLimited;
#endif
    return isLimited;
}

using Filter = std::unique_ptr<void, decltype(&seccomp_release)>;

/// What is refused, rule by rule, until the library does not take one.
class Rules {
public:
    explicit Rules(const Filter& filter) : m_filter(filter.get()) { }

    /// Always, or when the argument is so.
    void refuse(int call, int error, std::optional<scmp_arg_cmp> condition = std::nullopt)
    {
        const std::uint32_t action = SCMP_ACT_ERRNO(static_cast<std::uint16_t>(error));
        const int outcome = seccomp_rule_add_array(
            m_filter, action, call, condition ? 1 : 0, condition ? &*condition : nullptr);
        m_areAllIn = m_areAllIn && outcome == 0;
    }

    /// Names that this processor or library does not know are passed over: nobody can call them.
    void refuse(std::span<const char* const> names, int error)
    {
        for (const char* name : names) {
            if (const int call = seccomp_syscall_resolve_name(name); call != __NR_SCMP_ERROR)
                refuse(call, error);
        }
    }

    bool areAllIn() const { return m_areAllIn; }

private:
    scmp_filter_ctx m_filter;
    bool m_areAllIn = true;
};

/// The argument's bits under the mask have this value.
scmp_arg_cmp bits(unsigned argument, std::uint64_t mask, std::uint64_t value)
{
    return {.arg = argument, .op = SCMP_CMP_MASKED_EQ, .datum_a = mask, .datum_b = value};
}

void refuseOpeningForMoreThanReading(Rules& rules)
{
    for (const auto flag : std::initializer_list<std::uint64_t>{O_WRONLY, O_RDWR, O_CREAT, O_TRUNC}) {
        rules.refuse(SCMP_SYS(open), EPERM, bits(1, flag, flag));
        rules.refuse(SCMP_SYS(openat), EPERM, bits(2, flag, flag));
    }
}

void refuseOtherProcesses(Rules& rules)
{
    rules.refuse(SCMP_SYS(clone), EPERM, bits(0, CLONE_THREAD, 0));
    const auto self = static_cast<std::uint64_t>(getpid());
    for (const int call : {SCMP_SYS(kill), SCMP_SYS(tgkill)})
        rules.refuse(call, EPERM, scmp_arg_cmp{.arg = 0, .op = SCMP_CMP_NE, .datum_a = self, .datum_b = 0});
}

bool shutDoors()
{
    const Filter filter{seccomp_init(SCMP_ACT_ALLOW), &seccomp_release};
    if (filter == nullptr)
        return false;
    Rules rules{filter};
    refuseOpeningForMoreThanReading(rules);
    refuseOtherProcesses(rules);
    rules.refuse(ShutDoors::forbidden(), EPERM);
    rules.refuse(ShutDoors::unheardOf(), ENOSYS);
    for (const int call : ShutDoors::forbiddenWithoutName())
        rules.refuse(call, EPERM);
    return rules.areAllIn() && seccomp_load(filter.get()) == 0;
}

} // namespace

bool confine()
{
    constexpr unsigned firstAfterStandardStreams = 3;
    const bool areClosed = syscall(SYS_close_range, firstAfterStandardStreams, ~0U, 0) == 0;
    const bool hasNoPrivileges = prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
    const bool isLimited = limitResources();
    return shutDoors() && isLimited && hasNoPrivileges && areClosed;
}

} // namespace skyvane::Extension
