#include "companion/feed/pacer.h"

#include <QUrl>

#include <utility>

namespace skyvane {

namespace {

std::string hostOf(const URL& url)
{
    return QUrl{QString::fromStdString(url.text())}.host().toStdString();
}

} // namespace

/// A place in a host's line, until the end of the scope.
class Pacer::Turn {
public:
    Turn(Pacer& pacer, const URLRequest& request) : m_pacer(pacer)
    {
        const std::lock_guard lock{m_pacer.m_mutex};
        m_host = &m_pacer.m_hosts[hostOf(request.url)];
        m_place = m_host->line.insert(m_host->line.end(), &request);
    }
    ~Turn()
    {
        {
            const std::lock_guard lock{m_pacer.m_mutex};
            m_host->line.erase(m_place);
            if (m_hasCome)
                m_host->restedAt = Clock::now() + m_pacer.m_rest;
        }
        m_pacer.m_changed.notify_all();
    }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

    void await(const std::stop_token& stop)
    {
        std::unique_lock lock{m_pacer.m_mutex};
        m_pacer.m_changed.wait(lock, stop, [this] { return m_host->line.begin() == m_place; });
        m_pacer.m_changed.wait_until(
            lock, stop, m_host->restedAt, [this] { return Clock::now() >= m_host->restedAt; });
        if (stop.stop_requested())
            throw CancellationError{};
        m_hasCome = true;
    }

private:
    Pacer& m_pacer;
    Host* m_host;
    std::list<const URLRequest*>::iterator m_place;
    bool m_hasCome = false;
};

Pacer::Pacer(Transport transport, std::chrono::milliseconds rest)
    : m_transport(std::move(transport)), m_rest(rest)
{
}

URLResponse Pacer::data(const URLRequest& request, std::stop_token stop)
{
    Turn turn{*this, request};
    turn.await(stop);
    return m_transport(request, std::move(stop));
}

Transport Pacer::transport()
{
    return [this](const URLRequest& request, std::stop_token stop) { return data(request, std::move(stop)); };
}

} // namespace skyvane
