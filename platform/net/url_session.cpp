#include "platform/net/url_session.h"

#include "platform/net/broken_pipe.h"
#include "platform/net/resting_connection.h"
#include "platform/net/semaphore.h"
#include "platform/net/transfer.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <thread>
#include <utility>

namespace skyvane {

namespace {

void prepareLibrary()
{
    static const CURLcode outcome = curl_global_init(CURL_GLOBAL_DEFAULT);
    if (outcome != CURLE_OK)
        throw TransferError{TransferProblem::other, curl_easy_strerror(outcome)};
}

/// Absent when more authorities might vouch for the certificate.
std::optional<URLResponse> tryFor(const URLRequest& request, Connections& connections,
    const Transfer::Setting& setting, const std::stop_token& stop)
{
    Transfer transfer{request, connections, setting, stop};
    const std::optional<CURLcode> outcome = transfer.run();
    if (!outcome || stop.stop_requested())
        throw CancellationError{};
    if (transfer.deservesMoreTrust(*outcome))
        return std::nullopt;
    if (*outcome != CURLE_OK)
        throw transfer.error(*outcome);
    connections.socket = transfer.socket();
    return transfer.takeResponse();
}

/// Both tries together take no longer than one may.
URLResponse answer(const URLRequest& request, Connections& connections, const Transfer::Setting& setting,
    const std::stop_token& stop)
{
    using std::chrono::steady_clock;
    const auto start = steady_clock::now();
    if (auto response = tryFor(request, connections, setting, stop))
        return *std::move(response);
    connections.trust = Trust::folderAndBundle;
    URLRequest again = request;
    again.timeout = std::min(request.timeout, Transfer::longest)
        - std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now() - start);
    return tryFor(again, connections, setting, stop).value();
}

} // namespace

struct UrlSession::Shared {
    std::optional<Dialer> dialer{};
    RestingConnection connection{};
    Semaphore processors{std::max(std::thread::hardware_concurrency(), 1U)};
};

UrlSession::UrlSession() : m_shared(std::make_shared<Shared>()) { }

UrlSession::UrlSession(Dialer dialer) : UrlSession()
{
    m_shared->dialer = std::move(dialer);
}

URLResponse UrlSession::operator()(const URLRequest& request, const std::stop_token& stop) const
{
    if (stop.stop_requested())
        throw CancellationError{};
    prepareLibrary();
    const WithoutBrokenPipeSignal guard;
    Connections connections = m_shared->connection.take();
    const Transfer::Setting setting{
        .processors = m_shared->processors,
        .dialer = m_shared->dialer ? &*m_shared->dialer : nullptr,
    };
    URLResponse response = answer(request, connections, setting, stop);
    m_shared->connection.keep(std::move(connections));
    return response;
}

} // namespace skyvane
