#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

namespace skyvane::Extension {

/// Where answers go, a whole one at a time and from any thread; nobody waits for a slow reader. It is lost
/// when nobody can read it any more, or when nobody does within half a second of the end of the input.
class Output {
public:
    /// Owns neither descriptor.
    Output(int output, int input);
    /// Waits until what was written has been taken, half a second at most.
    ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    /// Does nothing once the output is lost. Waits only while megabytes wait already.
    void write(std::string bytes);

    /// An event descriptor that is readable once the output is lost.
    int lost() const { return m_lost; }
    bool isLost() const;

private:
    void run();
    bool send(std::string_view bytes);
    bool waitForRoom();

    int m_output;
    int m_input;
    int m_lost;
    int m_ending; ///< An event descriptor that is readable once nothing more will be written.

    std::mutex m_mutex; ///< Guards what follows.
    std::condition_variable m_changed;
    std::deque<std::string> m_waiting;
    std::size_t m_waitingBytes = 0;
    bool m_isEnding = false;

    std::optional<std::chrono::steady_clock::time_point> m_deadline; ///< From the end on; the thread's alone.
    std::jthread m_thread;
};

} // namespace skyvane::Extension
