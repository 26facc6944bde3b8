#include "widgets/extension/output.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <string_view>
#include <utility>

namespace skyvane::Extension {

namespace {

using namespace std::chrono_literals;

constexpr auto graceAfterInput = 500ms;
constexpr std::size_t mostWaiting = std::size_t{8} << 20; ///< Bytes.

bool isReadable(int event)
{
    pollfd waited{.fd = event, .events = POLLIN, .revents = 0};
    return poll(&waited, 1, 0) > 0;
}

} // namespace

Output::Output(int output, int input)
    : m_output(output)
    , m_input(input)
    , m_lost(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    , m_ending(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    , m_thread([this] { run(); })
{
}

Output::~Output()
{
    {
        const std::lock_guard lock{m_mutex};
        m_isEnding = true;
    }
    eventfd_write(m_ending, 1);
    m_changed.notify_all();
    m_thread.join();
    close(m_lost);
    close(m_ending);
}

void Output::write(std::string bytes)
{
    std::unique_lock lock{m_mutex};
    m_changed.wait(lock, [this] { return m_waitingBytes < mostWaiting || isLost(); });
    if (isLost())
        return;
    m_waitingBytes += bytes.size();
    m_waiting.push_back(std::move(bytes));
    m_changed.notify_all();
}

bool Output::isLost() const
{
    return isReadable(m_lost);
}

/// On a thread of its own.
void Output::run()
{
    std::unique_lock lock{m_mutex};
    while (true) {
        m_changed.wait(lock, [this] { return !m_waiting.empty() || m_isEnding; });
        if (m_waiting.empty())
            return;
        const std::string next = std::move(m_waiting.front());
        m_waiting.pop_front();
        lock.unlock();
        const bool isSent = send(next);
        lock.lock();
        m_waitingBytes -= next.size();
        if (!isSent) {
            eventfd_write(m_lost, 1);
            m_waiting.clear();
            m_waitingBytes = 0;
        }
        m_changed.notify_all();
    }
}

/// False when nobody reads it.
bool Output::send(std::string_view bytes)
{
    while (!bytes.empty()) {
        // A pipe that is ready takes PIPE_BUF bytes without blocking, whether or not its reader goes on
        // reading.
        const ssize_t count = waitForRoom()
            ? ::write(m_output, bytes.data(), std::min<std::size_t>(bytes.size(), PIPE_BUF))
            : 0;
        if (count < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
        if (count <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool Output::waitForRoom()
{
    std::array<pollfd, 3> awaited{{
        {.fd = m_output, .events = POLLOUT, .revents = 0},
        {.fd = m_input, .events = POLLRDHUP, .revents = 0},
        {.fd = m_ending, .events = POLLIN, .revents = 0},
    }};
    while (true) {
        using std::chrono::steady_clock;
        int timeout = -1;
        if (m_deadline) {
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(*m_deadline - steady_clock::now());
            timeout = static_cast<int>(std::max(left, 0ms).count());
            awaited[1].fd = awaited[2].fd = -1;
        }
        const int ready = poll(awaited.data(), awaited.size(), timeout);
        if (ready == 0)
            return false;
        if (ready > 0 && awaited[0].revents != 0)
            return true;
        if (ready > 0)
            m_deadline = steady_clock::now() + graceAfterInput;
    }
}

} // namespace skyvane::Extension
