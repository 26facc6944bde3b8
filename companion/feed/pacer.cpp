#include "companion/feed/pacer.h"

#include "core/feed/sources.h"

#include <QUrl>

#include <algorithm>
#include <utility>

namespace skyvane {

namespace {

std::string hostOf(const URL& url)
{
    return QUrl{QString::fromStdString(url.text())}.host().toStdString();
}

/// Whether the widgets ask it, too.
bool isAskedByAll(const std::string& host)
{
    return std::ranges::any_of(
        ADSB::sources(), [&](const ADSB::Source& source) { return source.name == host; });
}

bool isRefusal(int status)
{
    return status == 403 || status == 429;
}

} // namespace

/// A place in a host's line, until the end of the scope.
class Pacer::Turn {
public:
    Turn(Pacer& pacer, const URLRequest& request, const std::string& host) : m_pacer(pacer)
    {
        const std::lock_guard lock{m_pacer.m_mutex};
        m_host = &m_pacer.m_hosts[host];
        m_place = m_host->line.insert(m_host->line.end(), &request);
    }
    ~Turn()
    {
        {
            const std::lock_guard lock{m_pacer.m_mutex};
            m_host->line.erase(m_place);
            if (m_hasAsked)
                m_host->restedAt = Clock::now() + m_pacer.m_pace.rest;
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
    }

    /// The answer of a host that is to be left alone.
    std::optional<URLResponse> refusal() const
    {
        const std::lock_guard lock{m_pacer.m_mutex};
        if (Clock::now() >= m_host->welcomeAt)
            return std::nullopt;
        return URLResponse{.status = m_host->refusal, .body = {}};
    }

    /// From here on the host knows of it.
    void beginAsking() { m_hasAsked = true; }

    void note(const URLResponse& answer)
    {
        const std::lock_guard lock{m_pacer.m_mutex};
        if (!isRefusal(answer.status)) {
            m_host->refusals = 0;
            return;
        }
        constexpr int mostDoublings = 20;
        const Pace& pace = m_pacer.m_pace;
        const auto wait = pace.refusal * (1 << std::min(m_host->refusals, mostDoublings));
        ++m_host->refusals;
        m_host->refusal = answer.status;
        m_host->welcomeAt = Clock::now()
            + (answer.retryAfter ? *answer.retryAfter
                                 : std::min<std::chrono::milliseconds>(wait, pace.longestRefusal));
    }

private:
    Pacer& m_pacer;
    Host* m_host;
    std::list<const URLRequest*>::iterator m_place;
    bool m_hasAsked = false;
};

Pacer::Pacer(Transport transport, Pace pace) : m_transport(std::move(transport)), m_pace(std::move(pace)) { }

URLResponse Pacer::data(const URLRequest& request, std::stop_token stop)
{
    const std::string host = hostOf(request.url);
    Turn turn{*this, request, host};
    turn.await(stop);
    if (auto refusal = turn.refusal())
        return *std::move(refusal);
    const auto shared = awaitSharedTurn(host, stop);
    turn.beginAsking();
    URLResponse answer = m_transport(request, std::move(stop));
    turn.note(answer);
    return answer;
}

/// A program that never gives its turn back is waited for no longer than patience lasts.
std::optional<SharedTurn> Pacer::awaitSharedTurn(const std::string& host, const std::stop_token& stop)
{
    using namespace std::chrono_literals;
    if (!isAskedByAll(host))
        return std::nullopt;
    const auto end = Clock::now() + m_pace.patience;
    while (Clock::now() < end) {
        if (auto turn = SharedTurn::take(m_pace.sharedTurn, m_pace.rest))
            return turn;
        std::unique_lock lock{m_mutex};
        m_changed.wait_for(lock, stop, 20ms, [] { return false; });
        if (stop.stop_requested())
            throw CancellationError{};
    }
    return std::nullopt;
}

Transport Pacer::transport()
{
    return [this](const URLRequest& request, std::stop_token stop) { return data(request, std::move(stop)); };
}

} // namespace skyvane
