#pragma once

#include "platform/net/dialer.h"
#include "platform/net/handles.h"
#include "platform/net/resting_connection.h"
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

    /// What a transfer shares with others.
    struct Setting {
        Semaphore& processors; ///< Bounds how many compute at once.
        const Dialer* dialer; ///< Null where the library connects by itself.
    };

    /// `connections` serve no other transfer before this one's end.
    Transfer(const URLRequest& request, const Connections& connections, const Setting& setting,
        std::stop_token stop);
    ~Transfer() { curl_multi_remove_handle(m_multi, m_easy.get()); }
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;

    /// Absent when the stop token asked for the end first.
    std::optional<CURLcode> run();
    /// Whether all that failed is that the folder of authorities does not vouch for the certificate, and
    /// there is a bundle to ask as well.
    bool deservesMoreTrust(CURLcode outcome) const;
    TransferError error(CURLcode outcome) const;
    URLResponse takeResponse();
    /// Of the connection that the transfer leaves open; none of `poll`'s where it leaves none.
    int socket() const;

private:
    void setLimits(const URLRequest& request);
    void setTrust(Trust trust);
    void setHeaders(const std::vector<HTTPHeader>& headers);
    void setReceivers();
    void reserveBody();
    void confineTo(const Network& network);
    void connectBy(const Dialer& dialer);
    Destination destinationOf(const curl_sockaddr& address) const;
    curl_socket_t dial(const curl_sockaddr& address) noexcept;
    std::optional<CURLcode> outcome();
    std::string headers(const char* name) const;
    bool endsWithItsConnection(CURLcode outcome) const;
    bool announcesAbsurdLength() const;

    Setting m_setting;
    std::stop_token m_stop;
    std::chrono::steady_clock::time_point m_deadline;
    std::optional<Semaphore::Permit> m_turn; ///< While the transfer computes.
    std::optional<TransferError> m_undialled; ///< Why there is no connection.
    std::array<char, CURL_ERROR_SIZE> m_words{};
    bool m_hasUnreadBundle = false;
    const char* m_refusal = nullptr; ///< Why the rest of the answer was not wanted.
    std::size_t m_headerBytes = 0;
    std::string m_body;
    StringList m_headers;
    StringList m_connectTo;
    StringList m_addresses;
    CURLM* m_multi;
    EasyHandle m_easy{curl_easy_init()};
};

} // namespace skyvane
