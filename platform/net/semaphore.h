#pragma once

#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <stop_token>

namespace skyvane {

/// A counting semaphore; a stop token ends the wait for it at once.
class Semaphore {
public:
    explicit Semaphore(std::size_t count) : m_free(count) { }
    Semaphore(const Semaphore&) = delete;
    Semaphore& operator=(const Semaphore&) = delete;

    /// What one holder may do, until it is destroyed.
    class Permit {
    public:
        /// Waits for its turn. Nothing is permitted when `stop` asked for the end first.
        Permit(Semaphore& semaphore, const std::stop_token& stop);
        ~Permit();
        Permit(const Permit&) = delete;
        Permit& operator=(const Permit&) = delete;

        explicit operator bool() const { return m_isGranted; }

    private:
        Semaphore& m_semaphore;
        bool m_isGranted;
    };

private:
    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    std::size_t m_free;
};

} // namespace skyvane
