#pragma once

#include "platform/net/url_session.h"

#include <curl/curl.h>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace skyvane {

template <auto release>
struct Release {
    template <class Handle>
    void operator()(Handle* handle) const
    {
        release(handle);
    }
};
using EasyHandle = std::unique_ptr<CURL, Release<curl_easy_cleanup>>;
using MultiHandle = std::unique_ptr<CURLM, Release<curl_multi_cleanup>>;
using StringList = std::unique_ptr<curl_slist, Release<curl_slist_free_all>>;

/// One GET on its way: the handle, and what it has brought so far.
class Transfer {
public:
    explicit Transfer(const URLRequest& request);
    ~Transfer() { curl_multi_remove_handle(m_multi.get(), m_easy.get()); }
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;

    /// Absent when `stop` asked for the end first.
    std::optional<CURLcode> run(const std::stop_token& stop);
    std::string problem(CURLcode outcome) const;
    URLResponse takeResponse();

private:
    void setLimits(const URLRequest& request);
    void setHeaders(const std::vector<HTTPHeader>& headers);
    void setReceivers();
    void confineTo(const Network& network);
    std::optional<CURLcode> outcome() const;

    std::array<char, CURL_ERROR_SIZE> m_words{};
    const char* m_refusal = nullptr; ///< Why the rest of the answer was not wanted.
    std::size_t m_headerBytes = 0;
    std::string m_body;
    StringList m_headers;
    StringList m_connectTo;
    MultiHandle m_multi{curl_multi_init()};
    EasyHandle m_easy{curl_easy_init()};
};

} // namespace skyvane
