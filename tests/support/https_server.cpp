#include "tests/support/https_server.h"

#include <openssl/ssl.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <strings.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace skyvane::test {

namespace {

constexpr std::chrono::seconds longestWait{10};

void require(bool succeeded, const char* action)
{
    if (!succeeded)
        throw std::system_error{errno, std::generic_category(), action};
}

void blockBrokenPipeSignal()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

/// Splits the head off what has come so far, waiting for the rest of it.
std::string receiveHead(Connection& connection, std::string& pending)
{
    constexpr std::string_view end = "\r\n\r\n";
    while (pending.find(end) == std::string::npos)
        pending += connection.receive();
    const std::size_t length = pending.find(end) + end.size();
    std::string head = pending.substr(0, length);
    pending.erase(0, length);
    return head;
}

std::string_view takeUntil(std::string_view& text, std::string_view end)
{
    const std::size_t length = text.find(end);
    const std::string_view taken = text.substr(0, length);
    text.remove_prefix(length == std::string_view::npos ? text.size() : length + end.size());
    return taken;
}

RecordedRequest parse(std::string_view head)
{
    std::string_view firstLine = takeUntil(head, "\r\n");
    RecordedRequest request{
        .method = std::string{takeUntil(firstLine, " ")},
        .target = std::string{takeUntil(firstLine, " ")},
        .headers = {},
        .arrival = std::chrono::steady_clock::now(),
    };
    for (std::string_view line = takeUntil(head, "\r\n"); !line.empty(); line = takeUntil(head, "\r\n")) {
        const std::string_view name = takeUntil(line, ":");
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        request.headers.push_back({.name = std::string{name}, .value = std::string{line}});
    }
    return request;
}

} // namespace

std::optional<std::string> RecordedRequest::header(std::string_view name) const
{
    for (const HTTPHeader& header : headers) {
        if (header.name.size() == name.size()
            && strncasecmp(header.name.data(), name.data(), name.size()) == 0)
            return header.value;
    }
    return std::nullopt;
}

HttpsServer::HttpsServer(
    const CertificateAuthority& authority, std::vector<std::string> hosts, std::uint16_t port)
    : m_authorityFile(authority.file())
    , m_hosts(std::move(hosts))
    , m_context(contextOf(authority.issue(m_hosts)))
    , m_release(eventfd(0, EFD_CLOEXEC))
    , m_listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    SSL_CTX_set_tlsext_servername_callback(m_context.get(), &chooseCertificate);
    SSL_CTX_set_tlsext_servername_arg(m_context.get(), this);
    listen(port);
    m_accepting = std::jthread{[this] { accept(); }};
}

HttpsServer::~HttpsServer()
{
    shutdown(m_listener, SHUT_RDWR);
    m_accepting.join();
    hangUp();
    m_served.clear();
    close(m_listener);
    close(m_release);
}

void HttpsServer::hangUp()
{
    const std::lock_guard lock{m_mutex};
    for (Served& served : m_served)
        served.connection.interrupt();
}

void HttpsServer::answer(const std::string& targetPrefix, Answer answer)
{
    handle(targetPrefix, [answer = std::move(answer)](const RecordedRequest&, Connection& connection) {
        connection.answer(answer);
    });
}

void HttpsServer::handle(const std::string& targetPrefix, Handler handler)
{
    const std::lock_guard lock{m_mutex};
    m_handlers.insert_or_assign(targetPrefix, std::move(handler));
}

void HttpsServer::present(const std::string& host, const ServerCertificate& certificate)
{
    const std::lock_guard lock{m_mutex};
    m_contexts.insert_or_assign(host, contextOf(certificate));
}

void HttpsServer::greet(Greeting greeting)
{
    const std::lock_guard lock{m_mutex};
    m_greeting = std::move(greeting);
}

void HttpsServer::release()
{
    eventfd_write(m_release, 1);
}

std::vector<RecordedRequest> HttpsServer::requests() const
{
    const std::lock_guard lock{m_mutex};
    return m_requests;
}

std::size_t HttpsServer::connectionCount() const
{
    const std::lock_guard lock{m_mutex};
    return m_connectionCount;
}

bool HttpsServer::waitForRequests(std::size_t count)
{
    std::unique_lock lock{m_mutex};
    return m_changed.wait_for(lock, longestWait, [&] { return m_requests.size() >= count; });
}

bool HttpsServer::waitForConnections(std::size_t count)
{
    std::unique_lock lock{m_mutex};
    return m_changed.wait_for(lock, longestWait, [&] { return m_connectionCount >= count; });
}

Network HttpsServer::network() const
{
    Network network{.authorityFile = m_authorityFile};
    for (const std::string& host : m_hosts)
        network.connectTo.push_back(host + ":443:127.0.0.1:" + std::to_string(m_port));
    return network;
}

HttpsServer::Context HttpsServer::contextOf(const ServerCertificate& certificate)
{
    Context context{SSL_CTX_new(TLS_server_method()), SSL_CTX_free};
    SSL_CTX_use_certificate(context.get(), certificate.certificate.get());
    SSL_CTX_use_PrivateKey(context.get(), certificate.key.get());
    if (SSL_CTX_check_private_key(context.get()) != 1)
        throw std::runtime_error("the certificate and its key do not match");
    return context;
}

int HttpsServer::chooseCertificate(SSL* tls, int*, void* server)
{
    auto& self = *static_cast<HttpsServer*>(server);
    const char* host = SSL_get_servername(tls, TLSEXT_NAMETYPE_host_name);
    const std::lock_guard lock{self.m_mutex};
    if (const auto own = self.m_contexts.find(host != nullptr ? host : ""); own != self.m_contexts.end())
        SSL_set_SSL_CTX(tls, own->second.get());
    return SSL_TLSEXT_ERR_OK;
}

void HttpsServer::listen(std::uint16_t port)
{
    const int yes = 1;
    setsockopt(m_listener, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    socklen_t length = sizeof address;
    require(bind(m_listener, generic, length) == 0, "bind");
    require(::listen(m_listener, SOMAXCONN) == 0, "listen");
    require(getsockname(m_listener, generic, &length) == 0, "getsockname");
    m_port = ntohs(address.sin_port);
}

void HttpsServer::accept()
{
    for (int socket; (socket = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
        const std::lock_guard lock{m_mutex};
        ++m_connectionCount;
        std::erase_if(m_served, [](const Served& past) { return past.isOver.load(); });
        Served& served = m_served.emplace_back(socket, m_release);
        served.thread = std::jthread{[this, &served] {
            blockBrokenPipeSignal();
            try {
                serve(served.connection);
            } catch (const ConnectionGone&) {
            }
            served.connection.cut();
            served.isOver = true;
        }};
        m_changed.notify_all();
    }
}

void HttpsServer::serve(Connection& connection)
{
    std::unique_lock lock{m_mutex};
    const Greeting greeting = m_greeting;
    lock.unlock();
    if (greeting)
        greeting(connection);
    if (connection.isOpen())
        connection.startTLS(m_context.get());
    for (std::string pending; connection.isOpen();) {
        const RecordedRequest request = parse(receiveHead(connection, pending));
        lock.lock();
        m_requests.push_back(request);
        const Handler handler = handlerOf(request);
        m_changed.notify_all();
        lock.unlock();
        handler(request, connection);
    }
}

HttpsServer::Handler HttpsServer::handlerOf(const RecordedRequest& request) const
{
    Handler found
        = [](const RecordedRequest&, Connection& connection) { connection.answer({.status = 404}); };
    std::size_t length = 0;
    for (const auto& [prefix, handler] : m_handlers) {
        if (prefix.size() >= length && request.target.starts_with(prefix)) {
            found = handler;
            length = prefix.size();
        }
    }
    return found;
}

} // namespace skyvane::test
