#include "platform/sandbox/system_call_filter.h"

#include <linux/audit.h>
#include <linux/seccomp.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <bit>
#include <cstddef>

namespace skyvane {

namespace {

#if defined(__x86_64__)
constexpr std::uint32_t architecture = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr std::uint32_t architecture = AUDIT_ARCH_AARCH64;
#elif defined(__riscv) && __riscv_xlen == 64
constexpr std::uint32_t architecture = AUDIT_ARCH_RISCV64;
#else
constexpr std::uint32_t architecture = 0; // No call has it: the filter is not enforced there.
#endif

static_assert(SECCOMP_RET_ALLOW == static_cast<std::uint32_t>(SystemCallFilter::Answer::allowed));
static_assert(SECCOMP_RET_TRAP == static_cast<std::uint32_t>(SystemCallFilter::Answer::reported));
static_assert((SECCOMP_RET_ERRNO | 1) == static_cast<std::uint32_t>(SystemCallFilter::failure(1)));

constexpr auto theNumber = static_cast<std::uint32_t>(offsetof(seccomp_data, nr));

sock_filter load(std::uint32_t place)
{
    return BPF_STMT(BPF_LD | BPF_W | BPF_ABS, place);
}

/// Goes on with the next instruction when the accumulator compares so, else passes some over.
sock_filter test(std::uint16_t comparison, std::uint32_t value, std::size_t otherwisePassOver)
{
    return BPF_JUMP(static_cast<std::uint16_t>(BPF_JMP | comparison | BPF_K), value, 0,
        static_cast<std::uint8_t>(otherwisePassOver));
}

sock_filter give(std::uint32_t answer)
{
    return BPF_STMT(BPF_RET | BPF_K, answer);
}

std::uint32_t placeOf(const SystemCallFilter::Condition& condition)
{
    constexpr std::size_t half = sizeof(std::uint32_t);
    constexpr bool isLowFirst = std::endian::native == std::endian::little;
    const bool isFirst = (condition.half == SystemCallFilter::Condition::Half::low) == isLowFirst;
    return static_cast<std::uint32_t>(
        offsetof(seccomp_data, args) + condition.argument * 2 * half + (isFirst ? 0 : half));
}

} // namespace

SystemCallFilter::SystemCallFilter()
    : m_program{
        load(offsetof(seccomp_data, arch)),
        test(BPF_JEQ, architecture, 1),
        BPF_STMT(BPF_JMP | BPF_JA, 1),
        give(SECCOMP_RET_KILL_PROCESS),
        load(theNumber),
    }
{
}

bool SystemCallFilter::isOffered()
{
    const std::uint32_t wanted = SECCOMP_RET_ERRNO;
    return architecture != 0 && syscall(SYS_seccomp, SECCOMP_GET_ACTION_AVAIL, 0, &wanted) == 0;
}

void SystemCallFilter::answer(std::span<const int> calls, Answer answer)
{
    for (const int call : calls) {
        m_program.push_back(test(BPF_JEQ, static_cast<std::uint32_t>(call), 1));
        m_program.push_back(give(static_cast<std::uint32_t>(answer)));
    }
}

void SystemCallFilter::answer(int call, Conditions conditions, Answer answer)
{
    constexpr std::size_t each = 3; // Instructions of a condition.
    std::size_t left = conditions.size() * each + 1;
    m_program.push_back(test(BPF_JEQ, static_cast<std::uint32_t>(call), left + 1));
    for (const Condition& condition : conditions) {
        m_program.push_back(load(placeOf(condition)));
        m_program.push_back(BPF_STMT(BPF_ALU | BPF_AND | BPF_K, condition.mask));
        left -= each;
        m_program.push_back(test(BPF_JEQ, condition.value, left));
    }
    m_program.push_back(give(static_cast<std::uint32_t>(answer)));
    m_program.push_back(load(theNumber));
}

void SystemCallFilter::answerAbove(int call, Answer answer)
{
    m_program.push_back(test(BPF_JGT, static_cast<std::uint32_t>(call), 1));
    m_program.push_back(give(static_cast<std::uint32_t>(answer)));
}

bool SystemCallFilter::enforce(Answer forTheRest) &&
{
    m_program.push_back(give(static_cast<std::uint32_t>(forTheRest)));
    const sock_fprog program{
        .len = static_cast<unsigned short>(m_program.size()), .filter = m_program.data()};
    return syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, 0, &program) == 0;
}

} // namespace skyvane
