#include "widgets/extension/output.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>

namespace skyvane::Extension {

namespace {

using namespace std::chrono_literals;

constexpr auto graceAfterInput = 500ms;

} // namespace

Output::Output(int output, int input)
    : m_output(output), m_input(input), m_lost(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
}

Output::~Output()
{
    close(m_lost);
}

void Output::write(std::string_view bytes)
{
    const std::lock_guard lock{m_mutex};
    while (!bytes.empty() && !isLost()) {
        // So much never waits once a pipe has room, however long its reader sleeps.
        ssize_t count = waitForRoom()
            ? ::write(m_output, bytes.data(), std::min<std::size_t>(bytes.size(), PIPE_BUF))
            : 0;
        if (count < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
        if (count <= 0)
            eventfd_write(m_lost, 1);
        else
            bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

bool Output::isLost() const
{
    pollfd event{.fd = m_lost, .events = POLLIN, .revents = 0};
    return poll(&event, 1, 0) > 0;
}

bool Output::waitForRoom()
{
    std::array<pollfd, 2> awaited{{
        {.fd = m_output, .events = POLLOUT, .revents = 0},
        {.fd = m_input, .events = POLLRDHUP, .revents = 0},
    }};
    while (true) {
        using std::chrono::steady_clock;
        int timeout = -1;
        if (m_deadline) {
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(*m_deadline - steady_clock::now());
            timeout = static_cast<int>(std::max(left, 0ms).count());
            awaited[1].fd = -1;
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
