#pragma once

#include "platform/net/transport.h"
#include "tests/support/certificate_authority.h"
#include "tests/support/connection.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <openssl/types.h>

namespace skyvane::test {

/// One request as it came in.
struct RecordedRequest {
    std::string method;
    std::string target; ///< As sent.
    std::vector<HTTPHeader> headers; ///< In order, names as sent.
    std::chrono::steady_clock::time_point arrival;

    /// The first header of that name in any case.
    std::optional<std::string> header(std::string_view name) const;
};

/// Answers on this machine over HTTP/1.1 and TLS in place of the hosts that it is told, and records what it
/// is asked. A request that no answer is set for gets 404.
class HttpsServer {
public:
    using Handler = std::function<void(const RecordedRequest&, Connection&)>;
    using Greeting = std::function<void(Connection&)>;

    /// Listens on 127.0.0.1, on a port of its own unless one is given, with a certificate for all of the
    /// hosts.
    HttpsServer(
        const CertificateAuthority& authority, std::vector<std::string> hosts, std::uint16_t port = 0);
    /// Ends every connection at once. A handler that waits must do so by `Connection::stall`.
    ~HttpsServer();
    HttpsServer(const HttpsServer&) = delete;
    HttpsServer& operator=(const HttpsServer&) = delete;

    /// What answers targets that begin so, in place of what did until now.
    void answer(const std::string& targetPrefix, Answer answer);
    void handle(const std::string& targetPrefix, Handler handler);

    /// The certificate for one host, in place of the common one.
    void present(const std::string& host, const ServerCertificate& certificate);
    /// Called with every new connection before TLS begins.
    void greet(Greeting greeting);
    /// Ends every connection at once.
    void hangUp();
    /// Ends every stall, now and from now on.
    void release();

    std::uint16_t port() const { return m_port; }
    std::vector<RecordedRequest> requests() const;
    std::size_t connectionCount() const;
    /// Whether so many requests, or connections, came within 10 seconds.
    bool waitForRequests(std::size_t count);
    bool waitForConnections(std::size_t count);

    /// To pin: sends the hosts here, trusts the authority.
    Network network() const;

private:
    using Context = std::shared_ptr<SSL_CTX>;

    /// One connection and the thread that serves it.
    struct Served {
        Served(int socket, int release) : connection(socket, release) { }

        Connection connection;
        std::atomic<bool> isOver{false};
        std::jthread thread{};
    };

    static Context contextOf(const ServerCertificate& certificate);
    static int chooseCertificate(SSL* tls, int* alert, void* server);
    void listen(std::uint16_t port);
    void accept();
    void serve(Connection& connection);
    Handler handlerOf(const RecordedRequest& request) const;

    const std::string m_authorityFile;
    const std::vector<std::string> m_hosts;
    const Context m_context;
    int m_release;
    int m_listener;
    std::uint16_t m_port = 0;

    mutable std::mutex m_mutex; ///< Guards what follows.
    std::condition_variable m_changed;
    Greeting m_greeting;
    std::map<std::string, Context> m_contexts;
    std::map<std::string, Handler> m_handlers;
    std::vector<RecordedRequest> m_requests;
    std::size_t m_connectionCount = 0;
    std::list<Served> m_served;
    std::jthread m_accepting;
};

} // namespace skyvane::test
