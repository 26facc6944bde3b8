#include "platform/net/url_session.h"

#include "platform/net/broken_pipe.h"
#include "platform/net/transfer.h"

#include <curl/curl.h>

#include <optional>

namespace skyvane {

namespace {

void prepareLibrary()
{
    static const CURLcode outcome = curl_global_init(CURL_GLOBAL_DEFAULT);
    if (outcome != CURLE_OK)
        throw TransferError{curl_easy_strerror(outcome)};
}

} // namespace

URLResponse UrlSession::data(const URLRequest& request, std::stop_token stop)
{
    if (stop.stop_requested())
        throw CancellationError{};
    prepareLibrary();
    const WithoutBrokenPipeSignal guard;
    Transfer transfer{request};
    const std::optional<CURLcode> outcome = transfer.run(stop);
    if (!outcome || stop.stop_requested())
        throw CancellationError{};
    if (*outcome != CURLE_OK)
        throw TransferError{transfer.problem(*outcome)};
    return transfer.takeResponse();
}

} // namespace skyvane
