#pragma once

#include <csignal>
#include <ctime>

namespace skyvane {

/// Keeps a write to a connection that the other side has closed from ending the process. For the calling
/// thread, until the end of the scope; what the rest of the process does about the signal stays as it is.
class WithoutBrokenPipeSignal {
public:
    WithoutBrokenPipeSignal()
    {
        sigset_t pending;
        sigpending(&pending);
        m_wasPending = sigismember(&pending, SIGPIPE) == 1;
        sigemptyset(&m_signal);
        sigaddset(&m_signal, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &m_signal, &m_before);
    }
    ~WithoutBrokenPipeSignal()
    {
        constexpr timespec atOnce{};
        if (!m_wasPending)
            sigtimedwait(&m_signal, nullptr, &atOnce);
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }
    WithoutBrokenPipeSignal(const WithoutBrokenPipeSignal&) = delete;
    WithoutBrokenPipeSignal& operator=(const WithoutBrokenPipeSignal&) = delete;

private:
    sigset_t m_signal;
    sigset_t m_before;
    bool m_wasPending;
};

} // namespace skyvane
