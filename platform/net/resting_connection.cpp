#include "platform/net/resting_connection.h"

#include "platform/net/broken_pipe.h"

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

} // namespace

RestingConnection::~RestingConnection()
{
    const WithoutBrokenPipeSignal guard;
    m_resting.handle.reset();
}

Connections RestingConnection::take()
{
    const std::lock_guard lock{m_mutex};
    return m_resting.handle ? std::move(m_resting) : Connections{.handle = withoutConnection()};
}

void RestingConnection::keep(Connections connections)
{
    const std::lock_guard lock{m_mutex};
    std::swap(m_resting, connections);
}

} // namespace skyvane
