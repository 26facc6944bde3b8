#pragma once

#include <chrono>
#include <mutex>
#include <optional>
#include <string_view>

namespace skyvane::Extension {

/// Where answers go, a whole one at a time and from any thread. It is lost when nobody can read it any more,
/// or when nobody does within half a second of the end of the input.
class Output {
public:
    /// Owns neither descriptor.
    Output(int output, int input);
    ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    /// Waits for room. Does nothing once the output is lost.
    void write(std::string_view bytes);

    /// An event descriptor that is readable once the output is lost.
    int lost() const { return m_lost; }
    bool isLost() const;

private:
    bool waitForRoom();

    int m_output;
    int m_input;
    int m_lost;
    std::mutex m_mutex; ///< Held for a whole answer.
    std::optional<std::chrono::steady_clock::time_point> m_deadline; ///< From the end of the input on.
};

} // namespace skyvane::Extension
