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
std::optional<URLResponse> tryFor(const URLRequest& request, const Connections& connections,
    Semaphore& processors, const std::stop_token& stop)
{
    Transfer transfer{request, connections.handle.get(), connections.trust};
    const std::optional<CURLcode> outcome = transfer.run(processors, stop);
    if (!outcome || stop.stop_requested())
        throw CancellationError{};
    if (transfer.deservesMoreTrust(*outcome))
        return std::nullopt;
    if (*outcome != CURLE_OK)
        throw transfer.error(*outcome);
    return transfer.takeResponse();
}

/// Both tries together take no longer than one may.
URLResponse answer(
    const URLRequest& request, Connections& connections, Semaphore& processors, const std::stop_token& stop)
{
    using std::chrono::steady_clock;
    const auto start = steady_clock::now();
    if (auto response = tryFor(request, connections, processors, stop))
        return *std::move(response);
    connections.trust = Trust::folderAndBundle;
    URLRequest again = request;
    again.timeout = std::min(request.timeout, Transfer::longest)
        - std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now() - start);
    return tryFor(again, connections, processors, stop).value();
}

} // namespace

struct UrlSession::Shared {
    RestingConnection connection{};
    Semaphore processors{std::max(std::thread::hardware_concurrency(), 1U)};
};

UrlSession::UrlSession() : m_shared(std::make_shared<Shared>()) { }

URLResponse UrlSession::operator()(const URLRequest& request, const std::stop_token& stop) const
{
    if (stop.stop_requested())
        throw CancellationError{};
    prepareLibrary();
    const WithoutBrokenPipeSignal guard;
    Connections connections = m_shared->connection.take();
    URLResponse response = answer(request, connections, m_shared->processors, stop);
    m_shared->connection.keep(std::move(connections));
    return response;
}

} // namespace skyvane
