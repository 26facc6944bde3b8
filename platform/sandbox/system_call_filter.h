#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <vector>

#include <linux/filter.h>

namespace skyvane {

/// A seccomp filter: which system calls the calling thread, and all that it starts from then on, may still
/// make. The first rule that fits a call decides. A call by another architecture's numbers ends the process.
class SystemCallFilter {
public:
    /// Half of an argument has this value under the mask; the kernel reads no more than the low one of an
    /// int.
    struct Condition {
        enum class Half { low, high };

        unsigned argument;
        std::uint32_t value;
        std::uint32_t mask = ~std::uint32_t{0};
        Half half = Half::low;
    };
    using Conditions = std::initializer_list<Condition>;

    /// What becomes of a call: a code of the kernel's.
    enum class Answer : std::uint32_t { allowed = 0x7fff'0000, reported = 0x0003'0000 /* SIGSYS */ };
    static constexpr Answer failure(int error)
    {
        return static_cast<Answer>(0x0005'0000U | static_cast<std::uint32_t>(error));
    }

    /// Whether this machine's kernel takes any.
    static bool isOffered();

    SystemCallFilter();

    void answer(std::span<const int> calls, Answer answer);
    /// When all conditions hold.
    void answer(int call, Conditions conditions, Answer answer);
    /// Every call of a higher number.
    void answerAbove(int call, Answer answer);

    /// Puts it in force, for good. Whether the kernel took it; it wants to hear "no new privileges" before.
    bool enforce(Answer forTheRest) &&;

private:
    std::vector<sock_filter> m_program; ///< Between two rules the accumulator holds the call's number.
};

} // namespace skyvane
