#include "platform/net/address_parts.h"
#include "platform/net/options.h"
#include "platform/net/transfer.h"

#include <netinet/in.h>

#include <cstdint>
#include <utility>

namespace skyvane {

namespace {

/// Addresses for documentation, which nobody has, stand for what the dialer looks up.
constexpr std::uint32_t anyHost = 0xc0'00'02'01;
constexpr const char* anyHostInWords = "192.0.2.1";
constexpr const char* proxyInWords = "192.0.2.2";

bool isAnyHost(const curl_sockaddr& address)
{
    if (address.family != AF_INET)
        return false;
    const void* bytes = &address.addr;
    return ntohl(static_cast<const sockaddr_in*>(bytes)->sin_addr.s_addr) == anyHost;
}

} // namespace

/// The library looks up no name and connects nowhere: it is told what stands for every host, and asks for a
/// connected socket.
void Transfer::connectBy(const Dialer& dialer)
{
    CURL* const easy = m_easy.get();
    append(m_addresses, std::string{"*:443:"} + anyHostInWords);
    // One of IPv6 cannot be named there, and is its own address.
    const bool isProxyAnAddress = dialer.proxy && dialer.proxy->host.find(':') != std::string::npos;
    if (dialer.proxy && !isProxyAnAddress)
        append(
            m_addresses, dialer.proxy->host + ":" + std::to_string(dialer.proxy->port) + ":" + proxyInWords);
    set(easy, CURLOPT_RESOLVE, m_addresses.get());
    set(easy, CURLOPT_PROXY, dialer.proxy ? dialer.proxy->url.c_str() : "");

    using Open = curl_socket_t (*)(void*, curlsocktype, curl_sockaddr*);
    const Open open = [](void* transfer, curlsocktype, curl_sockaddr* address) noexcept {
        return static_cast<Transfer*>(transfer)->dial(*address);
    };
    using Prepare = int (*)(void*, curl_socket_t, curlsocktype);
    const Prepare prepare
        = [](void*, curl_socket_t, curlsocktype) noexcept { return int{CURL_SOCKOPT_ALREADY_CONNECTED}; };
    set(easy, CURLOPT_OPENSOCKETFUNCTION, open);
    set(easy, CURLOPT_OPENSOCKETDATA, this);
    set(easy, CURLOPT_SOCKOPTFUNCTION, prepare);

    using Look = int (*)(void*, void*, void*);
    const Look refuse = [](void*, void*, void* transfer) noexcept {
        static_cast<Transfer*>(transfer)->m_undialled
            = TransferError{TransferProblem::noRoute, "There is no way to another port than 443"};
        return 1;
    };
    if (!isProxyAnAddress) // Else it is looked up here.
        set(easy, CURLOPT_RESOLVER_START_FUNCTION, refuse);
    set(easy, CURLOPT_RESOLVER_START_DATA, this);
}

Destination Transfer::destinationOf(const curl_sockaddr& address) const
{
    const auto& proxy = m_setting.dialer->proxy;
    if (proxy && !isAnyHost(address))
        return {.host = proxy->host, .port = proxy->port};
    const char* url = nullptr;
    curl_easy_getinfo(m_easy.get(), CURLINFO_EFFECTIVE_URL, &url); // After a redirect, that one's.
    const AddressParts parts{url != nullptr ? url : "", CURLU_DEFAULT_PORT};
    return {.host = parts.host(), .port = portNumber(parts.get(CURLUPART_PORT))};
}

/// Called back by the library while this transfer computes.
curl_socket_t Transfer::dial(const curl_sockaddr& address) noexcept
{
    curl_socket_t socket = CURL_SOCKET_BAD;
    try {
        m_turn.reset(); // Who waits for a connection lets others compute.
        m_undialled.reset();
        socket = m_setting.dialer->dial(destinationOf(address), m_deadline, m_stop);
        m_turn.emplace(m_setting.processors, m_stop);
    } catch (const TransferError& error) {
        m_undialled = error;
    } catch (...) {
        m_undialled = TransferError{TransferProblem::other, ""};
    }
    return socket;
}

} // namespace skyvane
