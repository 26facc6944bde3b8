#include "tests/support/connection.h"

#include <openssl/ssl.h>

#include <poll.h>
#include <strings.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>

namespace skyvane::test {

std::string head(const Answer& answer)
{
    std::string text = "HTTP/1.1 " + std::to_string(answer.status) + " \r\n";
    bool isFramed = false;
    for (const HTTPHeader& header : answer.headers) {
        text += header.name + ": " + header.value + "\r\n";
        isFramed = isFramed || strcasecmp(header.name.c_str(), "Content-Length") == 0
            || strcasecmp(header.name.c_str(), "Transfer-Encoding") == 0;
    }
    if (!isFramed)
        text += "Content-Length: " + std::to_string(answer.body.size()) + "\r\n";
    return text + "\r\n";
}

Connection::Connection(int socket, int release) : m_socket(socket), m_release(release) { }

Connection::~Connection()
{
    if (isOpen())
        closeSocket();
}

void Connection::startTLS(SSL_CTX* context)
{
    m_tls.reset(SSL_new(context), SSL_free);
    SSL_set_fd(m_tls.get(), m_socket);
    if (SSL_accept(m_tls.get()) != 1) {
        cut();
        throw ConnectionGone{};
    }
}

bool Connection::resumesSession() const
{
    return SSL_session_reused(m_tls.get()) == 1;
}

std::string Connection::receive()
{
    if (!isOpen())
        throw ConnectionGone{};
    std::array<char, 4096> bytes;
    const ssize_t count = m_tls != nullptr
        ? SSL_read(m_tls.get(), bytes.data(), static_cast<int>(bytes.size()))
        : recv(m_socket, bytes.data(), bytes.size(), 0);
    if (count <= 0)
        throw ConnectionGone{};
    return {bytes.data(), static_cast<std::size_t>(count)};
}

void Connection::send(std::string_view bytes)
{
    while (!bytes.empty()) {
        if (!isOpen())
            throw ConnectionGone{};
        std::size_t sent = 0;
        if (m_tls != nullptr) {
            if (SSL_write_ex(m_tls.get(), bytes.data(), bytes.size(), &sent) != 1)
                throw ConnectionGone{};
        } else {
            const ssize_t count = ::send(m_socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
            if (count < 0)
                throw ConnectionGone{};
            sent = static_cast<std::size_t>(count);
        }
        bytes.remove_prefix(sent);
    }
}

void Connection::answer(const Answer& answer)
{
    send(head(answer) + answer.body);
}

void Connection::answerChunked(Answer answer, std::size_t chunkSize)
{
    answer.headers.push_back({.name = "Transfer-Encoding", .value = "chunked"});
    send(head(answer));
    for (std::string_view rest = answer.body; !rest.empty();
         rest.remove_prefix(std::min(chunkSize, rest.size()))) {
        const std::string_view chunk = rest.substr(0, chunkSize);
        std::array<char, 16> digits;
        const auto [end, error] = std::to_chars(digits.begin(), digits.end(), chunk.size(), 16);
        send(std::string{digits.begin(), end} + "\r\n" + std::string{chunk} + "\r\n");
    }
    send("0\r\n\r\n");
}

void Connection::drip(std::string_view bytes, std::size_t pieceSize, std::chrono::milliseconds interval)
{
    for (; !bytes.empty(); bytes.remove_prefix(std::min(pieceSize, bytes.size()))) {
        send(bytes.substr(0, pieceSize));
        waitForRelease(interval);
    }
}

void Connection::pause(std::chrono::milliseconds time)
{
    waitForRelease(time);
}

void Connection::stall()
{
    while (!waitForRelease(std::chrono::hours{1})) { }
}

void Connection::close()
{
    if (m_tls != nullptr && isOpen())
        SSL_shutdown(m_tls.get());
    cut();
}

void Connection::cut()
{
    if (isOpen())
        closeSocket();
}

void Connection::reset()
{
    const linger atOnce{.l_onoff = 1, .l_linger = 0};
    setsockopt(m_socket, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    cut();
}

void Connection::interrupt()
{
    const std::lock_guard lock{m_mutex};
    if (isOpen())
        shutdown(m_socket, SHUT_RDWR);
}

bool Connection::waitForRelease(std::chrono::milliseconds timeout)
{
    std::array<pollfd, 2> waited{{
        {.fd = m_socket, .events = POLLRDHUP, .revents = 0},
        {.fd = m_release, .events = POLLIN, .revents = 0},
    }};
    poll(waited.data(), waited.size(), static_cast<int>(timeout.count()));
    if (!isOpen() || waited[0].revents != 0)
        throw ConnectionGone{};
    return waited[1].revents != 0;
}

void Connection::closeSocket()
{
    const std::lock_guard lock{m_mutex};
    ::close(m_socket);
    m_socket = -1;
}

} // namespace skyvane::test
