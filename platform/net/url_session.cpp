#include "platform/net/url_session.h"

#include "platform/net/broken_pipe.h"
#include "platform/net/resting_connection.h"
#include "platform/net/transfer.h"

#include <optional>
#include <utility>

namespace skyvane {

namespace {

void prepareLibrary()
{
    static const CURLcode outcome = curl_global_init(CURL_GLOBAL_DEFAULT);
    if (outcome != CURLE_OK)
        throw TransferError{curl_easy_strerror(outcome)};
}

URLResponse answer(const URLRequest& request, CURLM* connections, const std::stop_token& stop)
{
    Transfer transfer{request, connections};
    const std::optional<CURLcode> outcome = transfer.run(stop);
    if (!outcome || stop.stop_requested())
        throw CancellationError{};
    if (*outcome != CURLE_OK)
        throw TransferError{transfer.problem(*outcome)};
    return transfer.takeResponse();
}

} // namespace

UrlSession::UrlSession() : m_connection(std::make_shared<RestingConnection>()) { }

URLResponse UrlSession::operator()(const URLRequest& request, const std::stop_token& stop) const
{
    if (stop.stop_requested())
        throw CancellationError{};
    prepareLibrary();
    const WithoutBrokenPipeSignal guard;
    MultiHandle connection = m_connection->take();
    URLResponse response = answer(request, connection.get(), stop);
    m_connection->keep(std::move(connection));
    return response;
}

} // namespace skyvane
