#include "host/service/supervisor.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace skyvane::Supervisor {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int endedBySignal = 128; ///< With the signal's number added, as shells say it.

/// How a process ended.
struct End {
    int status;
    bool isCrash; ///< By a signal.
    bool isWanted; ///< By a signal that the supervisor passed on.
};

int statusOf(int wait)
{
    return WIFEXITED(wait) ? WEXITSTATUS(wait) : endedBySignal + WTERMSIG(wait);
}

/// The signals that the supervisor waits for, blocked for as long as this lives.
class AwaitedSignals {
public:
    AwaitedSignals()
    {
        sigemptyset(&m_set);
        for (const int signal : {SIGCHLD, SIGTERM, SIGINT, SIGHUP})
            sigaddset(&m_set, signal);
        pthread_sigmask(SIG_BLOCK, &m_set, &m_before);
    }
    ~AwaitedSignals() { restore(); }
    AwaitedSignals(const AwaitedSignals&) = delete;
    AwaitedSignals& operator=(const AwaitedSignals&) = delete;

    void restore() const { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    int next() const { return sigwaitinfo(&m_set, nullptr); }

private:
    sigset_t m_set{};
    sigset_t m_before{};
};

/// Absent where no process could be made.
std::optional<End> runOnce(const Work& work, bool isRestart, const AwaitedSignals& awaited)
{
    const pid_t supervisor = getpid();
    const pid_t process = fork();
    if (process < 0)
        return std::nullopt;
    if (process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (getppid() != supervisor)
            std::_Exit(EXIT_FAILURE);
        awaited.restore();
        std::exit(work(isRestart)); // NOLINT(concurrency-mt-unsafe): the only thread there is.
    }
    bool isWanted = false;
    int wait = 0;
    while (waitpid(process, &wait, WNOHANG) == 0) {
        const int signal = awaited.next();
        if (signal > 0 && signal != SIGCHLD) {
            isWanted = true;
            kill(process, signal);
        }
    }
    return End{.status = statusOf(wait), .isCrash = WIFSIGNALED(wait), .isWanted = isWanted};
}

bool awaitDisplay(const std::function<bool()>& isThere, std::chrono::milliseconds limit)
{
    constexpr std::chrono::milliseconds step{250};
    const auto end = Clock::now() + limit;
    while (!isThere()) {
        if (Clock::now() >= end)
            return false;
        std::this_thread::sleep_for(step);
    }
    return true;
}

} // namespace

int run(const Work& work, const std::function<bool()>& isDisplayThere, const Limits& limits)
{
    auto pause = limits.pause;
    int restarts = 0;
    for (bool isRestart = false;; isRestart = true) {
        const auto start = Clock::now();
        const auto end = runOnce(work, isRestart, AwaitedSignals{});
        if (!end)
            return work(isRestart);
        const auto time = Clock::now() - start;
        const bool hasFailedToStart = !isRestart && !end->isCrash && time < limits.shortestRun;
        if (end->status == EXIT_SUCCESS || end->isWanted || hasFailedToStart)
            return end->status;
        if (time >= limits.soundRun) {
            restarts = 0;
            pause = limits.pause;
        }
        if (++restarts > limits.restarts || !awaitDisplay(isDisplayThere, limits.displayIsAwaited))
            return EXIT_FAILURE;
        std::this_thread::sleep_for(pause);
        pause += pause / 2;
    }
}

} // namespace skyvane::Supervisor
