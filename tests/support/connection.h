#pragma once

#include "platform/net/transport.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include <openssl/types.h>

namespace skyvane::test {

/// A whole answer. Content-Length is added unless the headers name it or a Transfer-Encoding.
struct Answer {
    int status = 200;
    std::vector<HTTPHeader> headers{};
    std::string body{};
};

/// Status line, headers and the blank line, as `Connection::answer` sends them.
std::string head(const Answer& answer);

/// The client has left or the server stops: ends the handler that meets it.
struct ConnectionGone { };

/// The server's end of one connection, plain until TLS is started. Everything but `interrupt` is for the
/// thread that serves it, and throws `ConnectionGone`.
class Connection {
public:
    /// Owns the socket. Every `stall` ends when `release`, an event descriptor, becomes readable.
    Connection(int socket, int release);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void startTLS(SSL_CTX* context);
    bool resumesSession() const; ///< Of TLS, and thus without showing a certificate.

    /// What the client sends next, at least one byte.
    std::string receive();
    void send(std::string_view bytes);
    void answer(const Answer& answer);
    void answerChunked(Answer answer, std::size_t chunkSize);
    void drip(std::string_view bytes, std::size_t pieceSize, std::chrono::milliseconds interval);

    /// Goes on after this time, or at the release.
    void pause(std::chrono::milliseconds time);

    /// Waits for the release; the client's leaving and the server's end are `ConnectionGone`.
    void stall();

    void close(); ///< As agreed in TLS.
    void cut(); ///< Without a goodbye in TLS.
    void reset(); ///< The TCP connection is refused from now on.

    bool isOpen() const { return m_socket >= 0; }

    /// From any thread: what the serving thread waits for fails.
    void interrupt();

private:
    bool waitForRelease(std::chrono::milliseconds timeout);
    void closeSocket();

    std::mutex m_mutex; ///< Guards the life of the socket against `interrupt`.
    int m_socket;
    int m_release;
    std::shared_ptr<SSL> m_tls;
};

} // namespace skyvane::test
