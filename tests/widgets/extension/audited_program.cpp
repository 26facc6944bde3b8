// The extension's program, which tells on standard error of each system call that its confinement refuses and
// does not name: what a library needs on some machine would otherwise fail in silence.

#include "widgets/extension/run.h"

#include <ucontext.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <string_view>

namespace {

void report(int, siginfo_t* info, void* context)
{
    constexpr std::string_view words = "refused system call ";
    std::array<char, 64> line{};
    words.copy(line.data(), words.size());
    char* const end = std::to_chars(line.begin() + words.size(), line.end() - 1, info->si_syscall).ptr;
    *end = '\n';
    [[maybe_unused]] const ssize_t written
        = write(STDERR_FILENO, line.data(), static_cast<std::size_t>(end + 1 - line.data()));
    auto& registers = static_cast<ucontext_t*>(context)->uc_mcontext;
#if defined(__x86_64__)
    registers.gregs[REG_RAX] = -EPERM;
#elif defined(__aarch64__)
    registers.regs[0] = static_cast<unsigned long>(-EPERM);
#else
#error "Where does this architecture's kernel leave a system call's outcome?"
#endif
}

} // namespace

int main()
{
    struct sigaction action { };
    action.sa_sigaction = report;
    action.sa_flags = SA_SIGINFO | SA_NODEFER;
    sigaction(SIGSYS, &action, nullptr);
    return skyvane::Extension::run(skyvane::Extension::Unlisted::reported);
}
