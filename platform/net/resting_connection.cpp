#include "platform/net/resting_connection.h"

#include "platform/net/broken_pipe.h"

#include <poll.h>

#include <utility>

namespace skyvane {

namespace {

MultiHandle withoutConnection()
{
    constexpr long most = 1;
    MultiHandle made{curl_multi_init()};
    curl_multi_setopt(made.get(), CURLMOPT_MAXCONNECTS, most);
    return made;
}

/// Whether there is something to read, be it the end.
bool hasSpoken(const Connections& connections)
{
    pollfd watched{.fd = connections.socket, .events = POLLIN, .revents = 0};
    return poll(&watched, 1, 0) > 0;
}

} // namespace

RestingConnection::~RestingConnection()
{
    const WithoutBrokenPipeSignal guard;
    m_resting.handle.reset();
}

Connections RestingConnection::take()
{
    Connections resting;
    {
        const std::lock_guard lock{m_mutex};
        std::swap(resting, m_resting);
    }
    return resting.handle && !hasSpoken(resting) ? std::move(resting)
                                                 : Connections{.handle = withoutConnection()};
}

void RestingConnection::keep(Connections connections)
{
    const std::lock_guard lock{m_mutex};
    std::swap(m_resting, connections);
}

} // namespace skyvane
