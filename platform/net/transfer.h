#pragma once

#include "platform/net/authorities.h"
#include "platform/net/handles.h"
#include "platform/net/semaphore.h"
#include "platform/net/transport.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace skyvane {

/// One GET on its way: the handle, and what it has brought so far.
class Transfer {
public:
    static constexpr std::chrono::milliseconds longest{8'000};

    /// `connections` serve no other transfer before this one's end.
    Transfer(const URLRequest& request, CURLM* connections, Trust trust);
    ~Transfer() { curl_multi_remove_handle(m_multi, m_easy.get()); }
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;

    /// Absent when `stop` asked for the end first.
    /// `processors` bounds how many transfers compute at once.
    std::optional<CURLcode> run(Semaphore& processors, const std::stop_token& stop);
    /// Whether all that failed is that the folder of authorities does not vouch for the certificate, and
    /// there is a bundle to ask as well.
    bool deservesMoreTrust(CURLcode outcome) const;
    TransferError error(CURLcode outcome) const;
    URLResponse takeResponse();

private:
    void setLimits(const URLRequest& request);
    void setTrust(Trust trust);
    void setHeaders(const std::vector<HTTPHeader>& headers);
    void setReceivers();
    void reserveBody();
    void confineTo(const Network& network);
    std::optional<CURLcode> outcome() const;
    bool endsWithItsConnection(CURLcode outcome) const;

    std::array<char, CURL_ERROR_SIZE> m_words{};
    bool m_hasUnreadBundle = false;
    const char* m_refusal = nullptr; ///< Why the rest of the answer was not wanted.
    std::size_t m_headerBytes = 0;
    std::string m_body;
    StringList m_headers;
    StringList m_connectTo;
    CURLM* m_multi;
    EasyHandle m_easy{curl_easy_init()};
};

} // namespace skyvane
