#include "tests/widgets/extension/relay.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <system_error>
#include <utility>

namespace skyvane::test {

namespace {

constexpr int shortly = 20; ///< Milliseconds.

template <class Address>
sockaddr* generic(Address& address)
{
    void* bytes = &address;
    return static_cast<sockaddr*>(bytes);
}

void require(bool isDone, const char* action)
{
    if (!isDone)
        throw std::system_error{errno, std::generic_category(), action};
}

Files::Descriptor listenOn(bool isOnNewerAddress, std::uint16_t port)
{
    Files::Descriptor listener{socket(isOnNewerAddress ? AF_INET6 : AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    const int on = 1;
    setsockopt(listener.number(), SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    if (isOnNewerAddress) {
        sockaddr_in6 address{};
        address.sin6_family = AF_INET6;
        address.sin6_port = htons(port);
        address.sin6_addr = in6addr_loopback;
        require(bind(listener.number(), generic(address), sizeof address) == 0, "bind to ::1");
    } else {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(port);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        require(bind(listener.number(), generic(address), sizeof address) == 0, "bind to 127.0.0.1");
    }
    require(listen(listener.number(), SOMAXCONN) == 0, "listen");
    return listener;
}

Files::Descriptor connectToServer()
{
    constexpr std::uint16_t https = 443;
    Files::Descriptor server{socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(https);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    connect(server.number(), generic(address), sizeof address);
    return server;
}

bool waitFor(int socket, const std::stop_token& stop)
{
    pollfd ready{.fd = socket, .events = POLLIN, .revents = 0};
    while (!stop.stop_requested()) {
        if (poll(&ready, 1, shortly) > 0)
            return true;
    }
    return false;
}

/// What the client says, up to this end or this many bytes.
std::string hear(int client, std::size_t most, const std::string& end = "")
{
    std::string heard;
    char byte = 0;
    while (heard.size() < most && (end.empty() || !heard.ends_with(end)) && read(client, &byte, 1) == 1)
        heard += byte;
    return heard;
}

void say(int client, const std::string& bytes)
{
    send(client, bytes.data(), bytes.size(), MSG_NOSIGNAL);
}

/// Whether it may go on.
bool pass(int from, int to)
{
    std::array<char, 16384> bytes;
    const ssize_t count = recv(from, bytes.data(), bytes.size(), 0);
    return count > 0 && send(to, bytes.data(), static_cast<std::size_t>(count), MSG_NOSIGNAL) == count;
}

std::string takeSocks5(int client)
{
    const std::string methods = hear(client, 1);
    hear(client, static_cast<unsigned char>(methods.at(0)));
    say(client, {'\5', '\0'});
    const std::string request = hear(client, 5); // Version, command, 0, kind of address, length.
    const bool isName = request.size() == 5 && request[3] == '\3';
    std::string host = isName ? hear(client, static_cast<unsigned char>(request[4])) : "an address";
    hear(client, 2);
    say(client, {'\5', '\0', '\0', '\1', 0, 0, 0, 0, 0, 0});
    return host;
}

std::string takeSocks4(int client)
{
    hear(client, 7);
    hear(client, 256, std::string(1, '\0')); // The user.
    std::string host = hear(client, 256, std::string(1, '\0'));
    host.pop_back();
    say(client, {'\0', '\x5a', 0, 0, 0, 0, 0, 0});
    return host;
}

std::string takeConnect(int client)
{
    const std::string head = hear(client, 4096, "\r\n\r\n"); // After the first letter.
    const std::size_t start = head.find(' ') + 1;
    say(client, "HTTP/1.1 200 Here you are\r\n\r\n");
    return head.substr(start, head.find(':') - start);
}

} // namespace

Relay::Relay(Manner manner, bool isOnNewerAddress, std::uint16_t port)
    : m_manner(manner)
    , m_listener(listenOn(isOnNewerAddress, port))
    , m_accepting([this](const std::stop_token& stop) { accept(stop); })
{
}

Relay::~Relay()
{
    m_accepting.request_stop();
    m_accepting.join();
}

std::vector<std::string> Relay::hosts() const
{
    const std::lock_guard lock{m_mutex};
    return m_hosts;
}

void Relay::accept(const std::stop_token& stop)
{
    while (waitFor(m_listener.number(), stop)) {
        Files::Descriptor client{accept4(m_listener.number(), nullptr, nullptr, SOCK_CLOEXEC)};
        m_serving.emplace_back([this, client = std::move(client)](
                                   const std::stop_token& end) mutable { serve(std::move(client), end); });
    }
}

void Relay::serve(Files::Descriptor client, const std::stop_token& stop)
{
    const std::string host = m_manner == Manner::proxy ? takeOrder(client.number()) : "";
    {
        const std::lock_guard lock{m_mutex};
        m_hosts.push_back(host);
    }
    const Files::Descriptor server = connectToServer();
    std::array<pollfd, 2> ends{{
        {.fd = client.number(), .events = POLLIN, .revents = 0},
        {.fd = server.number(), .events = POLLIN, .revents = 0},
    }};
    while (!stop.stop_requested()) {
        if (poll(ends.data(), ends.size(), shortly) <= 0)
            continue;
        if ((ends[0].revents != 0 && !pass(ends[0].fd, ends[1].fd))
            || (ends[1].revents != 0 && !pass(ends[1].fd, ends[0].fd)))
            return;
    }
}

std::string Relay::takeOrder(int client) const
{
    const std::string first = hear(client, 1);
    if (first == "\5")
        return takeSocks5(client);
    return first == "\4" ? takeSocks4(client) : takeConnect(client);
}

} // namespace skyvane::test
