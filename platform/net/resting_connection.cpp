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
    m_resting.reset();
}

MultiHandle RestingConnection::take()
{
    const std::lock_guard lock{m_mutex};
    return m_resting ? std::move(m_resting) : withoutConnection();
}

void RestingConnection::keep(MultiHandle connection)
{
    const std::lock_guard lock{m_mutex};
    m_resting.swap(connection);
}

} // namespace skyvane
