#include "companion/photo/decoder/confinement.h"

#include "platform/sanitized.h"

#include <linux/landlock.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <initializer_list>
#include <memory>

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

/// Landlock: from its first version on no file, from its fourth no connection, from its sixth no signal and
/// no abstract socket. A kernel without it is none the worse: no call that is left could open anything.
void giveUpFiles()
{
    /// As of its sixth version, which not every system's headers have.
    struct Rules {
        std::uint64_t files;
        std::uint64_t connections;
        std::uint64_t scopes;
    };
    constexpr std::array<std::uint64_t, 5> filesByVersion{0x1fff, 0x3fff, 0x7fff, 0x7fff, 0xffff};
    const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return;
    const auto known = static_cast<std::size_t>(version);
    const Rules rules{
        .files = filesByVersion[std::min(known, filesByVersion.size()) - 1],
        .connections = version >= 4 ? std::uint64_t{3} : 0,
        .scopes = version >= 6 ? std::uint64_t{3} : 0,
    };
    const long set = syscall(SYS_landlock_create_ruleset, &rules, sizeof rules, 0);
    syscall(SYS_landlock_restrict_self, set, 0);
    close(static_cast<int>(set));
}

using Filter = std::unique_ptr<void, decltype(&seccomp_release)>;

/// Rule by rule, until the library does not take one.
class AllowList {
public:
    explicit AllowList(const Filter& filter) : m_filter(filter.get()) { }

    void allow(int call, std::initializer_list<scmp_arg_cmp> conditions = {})
    {
        m_isWhole = m_isWhole
            && seccomp_rule_add_array(m_filter, SCMP_ACT_ALLOW, call,
                   static_cast<unsigned>(conditions.size()), conditions.begin())
                == 0;
    }

    bool isWhole() const { return m_isWhole; }

private:
    scmp_filter_ctx m_filter;
    bool m_isWhole = true;
};

scmp_arg_cmp is(unsigned argument, std::uint64_t value)
{
    return {.arg = argument, .op = SCMP_CMP_EQ, .datum_a = value, .datum_b = 0};
}

scmp_arg_cmp isWithout(unsigned argument, std::uint64_t bits)
{
    return {.arg = argument, .op = SCMP_CMP_MASKED_EQ, .datum_a = bits, .datum_b = 0};
}

bool giveUpCalls()
{
    const Filter filter{seccomp_init(SCMP_ACT_ERRNO(EPERM)), &seccomp_release};
    if (filter == nullptr)
        return false;
    AllowList list{filter};
    list.allow(SCMP_SYS(read), {is(0, STDIN_FILENO)});
    list.allow(SCMP_SYS(write), {is(0, STDOUT_FILENO)});
    list.allow(SCMP_SYS(mmap), {isWithout(2, PROT_EXEC), isWithout(3, MAP_SHARED)});
    for (const int call : {SCMP_SYS(brk), SCMP_SYS(munmap), SCMP_SYS(mremap), SCMP_SYS(madvise),
             SCMP_SYS(futex), SCMP_SYS(exit), SCMP_SYS(exit_group)})
        list.allow(call);
#ifdef SKYVANE_SANITIZED // What the sanitizer says, and how it prepares to.
    list.allow(SCMP_SYS(write), {is(0, STDERR_FILENO)});
    list.allow(SCMP_SYS(sigaltstack));
#endif
    return list.isWhole() && seccomp_load(filter.get()) == 0;
}

} // namespace

bool confine()
{
    const bool isBound = prctl(PR_SET_PDEATHSIG, SIGKILL, 0, 0, 0) == 0
        && syscall(SYS_close_range, STDERR_FILENO + 1, ~0U, 0) == 0
        && prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
    giveUpFiles();
    const bool isLimited = limit(RLIMIT_CORE, 0) && limit(RLIMIT_FSIZE, 0) && limit(RLIMIT_NOFILE, 0)
        && limit(RLIMIT_CPU, secondsOfProcessor) && limit(RLIMIT_AS, memory);
    return isBound && isLimited && giveUpCalls();
}

} // namespace skyvane::PhotoDecoder
