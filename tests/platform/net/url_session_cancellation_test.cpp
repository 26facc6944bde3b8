#include "tests/platform/net/url_session_fixture.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <future>
#include <latch>
#include <optional>
#include <string>
#include <system_error>
#include <thread>

namespace skyvane::test {

namespace {

using std::chrono::steady_clock;

/// Generous to a machine that tests on every core, with sanitizers; a stall would last 8 seconds.
constexpr std::chrono::milliseconds atOnce{500};

/// A port that answers no call: as many connections as it has room for wait to be taken.
class FullPort {
public:
    FullPort()
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        auto* const generic = reinterpret_cast<sockaddr*>(&address);
        if (bind(m_listener, generic, length) != 0 || listen(m_listener, 0) != 0
            || getsockname(m_listener, generic, &length) != 0)
            throw std::system_error{errno, std::generic_category(), "no port"};
        m_number = ntohs(address.sin_port);
        for (int& caller : m_callers) {
            caller = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
            connect(caller, generic, length);
        }
    }
    ~FullPort()
    {
        for (const int caller : m_callers)
            close(caller);
        close(m_listener);
    }
    FullPort(const FullPort&) = delete;
    FullPort& operator=(const FullPort&) = delete;

    int number() const { return m_number; }

    /// How many call it and are not put through, as the kernel lists them.
    std::size_t waiting() const
    {
        std::array<char, 16> callTo{};
        std::snprintf(callTo.data(), callTo.size(), ":%04X 02", m_number);
        std::ifstream connections{"/proc/net/tcp"};
        std::size_t count = 0;
        for (std::string line; std::getline(connections, line);)
            count += line.find(callTo.data()) != std::string::npos ? 1 : 0;
        return count;
    }

private:
    int m_listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    int m_number = 0;
    std::array<int, 4> m_callers{};
};

/// Cancellations, timed.
class UrlSessionCancellation : public UrlSessionTest {
protected:
    /// Starts a transfer, cancels it as soon as `isUnderWay` returns, and returns how long it took from there
    /// to the CancellationError.
    template <class Wait>
    std::optional<steady_clock::duration> cancelled(Wait isUnderWay)
    {
        std::stop_source stop;
        auto transfer = std::async(std::launch::async, [&]() -> std::optional<steady_clock::time_point> {
            try {
                session(request(), stop.get_token());
            } catch (const CancellationError&) {
                return steady_clock::now();
            }
            return std::nullopt;
        });
        isUnderWay();
        const auto start = steady_clock::now();
        stop.request_stop();
        const auto end = transfer.get();
        return end ? std::optional{*end - start} : std::nullopt;
    }
};

} // namespace

TEST_F(UrlSessionCancellation, comesAtOnceWhileItConnects)
{
    const FullPort port;
    const Pinned<Network> elsewhere{{.authorityFile = authority.file(),
        .connectTo = {"example.test:443:127.0.0.1:" + std::to_string(port.number())}}};
    const std::size_t before = port.waiting();
    const auto calls = [&] {
        while (port.waiting() == before)
            std::this_thread::yield();
    };
    EXPECT_LT(cancelled(calls).value(), atOnce);
}

TEST_F(UrlSessionCancellation, comesAtOnceWithinTheHandshake)
{
    server.greet(&Connection::stall);
    EXPECT_LT(cancelled([&] { server.waitForConnections(1); }).value(), atOnce);
}

TEST_F(UrlSessionCancellation, comesAtOnceWhileTheServerSaysNothing)
{
    server.handle("/", [](const auto&, Connection& connection) { connection.stall(); });
    EXPECT_LT(cancelled([&] { server.waitForRequests(1); }).value(), atOnce);
}

TEST_F(UrlSessionCancellation, comesAtOnceWithinABody)
{
    std::latch hasBegun{1};
    server.handle("/", [&](const auto&, Connection& connection) {
        connection.send(
            head({.headers = {{.name = "Content-Length", .value = "1000000"}}}) + "the first bytes");
        hasBegun.count_down();
        connection.stall();
    });
    EXPECT_LT(cancelled([&] { hasBegun.wait(); }).value(), atOnce);
}

TEST_F(UrlSessionCancellation, comesAtOnceWhileABodyPoursIn)
{
    std::latch hasBegun{1};
    server.handle("/", [&](const auto&, Connection& connection) {
        connection.send("HTTP/1.1 200 OK\r\n\r\n");
        hasBegun.count_down();
        connection.drip(std::string(100'000, 'x'), 1, 1ms);
    });
    EXPECT_LT(cancelled([&] { hasBegun.wait(); }).value(), atOnce);
}

TEST_F(UrlSessionTest, aCancelledTransferMakesNoConnection)
{
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(session(request(), stop.get_token()), CancellationError);
    EXPECT_EQ(server.connectionCount(), 0U);
}

TEST_F(UrlSessionTest, cancellationWinsOverFailure)
{
    std::stop_source stop;
    server.handle("/", [&](const auto&, Connection& connection) {
        stop.request_stop();
        connection.reset();
    });
    EXPECT_THROW(session(request(), stop.get_token()), CancellationError);
}

TEST_F(UrlSessionTest, aStopTokenThatNobodyUsesChangesNothing)
{
    server.answer("/", {.body = "here"});
    std::stop_source stop;
    EXPECT_EQ(session(request(), stop.get_token()).body, "here");
}

} // namespace skyvane::test
