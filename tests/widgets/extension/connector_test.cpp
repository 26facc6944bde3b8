#include "widgets/extension/connector.h"

#include "platform/net/transfer_error.h"
#include "tests/support/process_status.h"
#include "widgets/extension/race.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <optional>
#include <stop_token>
#include <system_error>
#include <thread>

namespace skyvane::Extension {

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

sockaddr* generic(sockaddr_in& address)
{
    void* bytes = &address;
    return static_cast<sockaddr*>(bytes);
}

/// A port of this machine: of a server, or one where nobody listens.
class Port {
public:
    /// `backlog`: connections that nobody accepts; absent: nobody listens.
    explicit Port(std::optional<int> backlog)
    {
        m_address.sin_family = AF_INET;
        m_address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof m_address;
        if (bind(m_socket.number(), generic(m_address), size) != 0
            || getsockname(m_socket.number(), generic(m_address), &size) != 0
            || (backlog && listen(m_socket.number(), *backlog) != 0))
            throw std::system_error{errno, std::generic_category(), "port"};
    }

    Destination destination() const { return {.host = "127.0.0.1", .port = ntohs(m_address.sin_port)}; }
    /// As a look-up has it, before `next`.
    addrinfo found(addrinfo* next = nullptr)
    {
        addrinfo entry{};
        entry.ai_family = AF_INET;
        entry.ai_socktype = SOCK_STREAM;
        entry.ai_addr = generic(m_address);
        entry.ai_addrlen = sizeof m_address;
        entry.ai_next = next;
        return entry;
    }
    /// From now on it answers nobody who wants to connect.
    void fill()
    {
        for (Files::Descriptor& taken : m_taken) {
            taken = Files::Descriptor{socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)};
            connect(taken.number(), generic(m_address), sizeof m_address);
        }
    }

private:
    Files::Descriptor m_socket{socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    sockaddr_in m_address{};
    std::array<Files::Descriptor, 4> m_taken{};
};

/// What dialling came to.
std::optional<TransferProblem> problem(
    const Connector& connector, const Destination& destination, std::chrono::milliseconds patience = 10s)
{
    try {
        const Files::Descriptor socket{connector.dial(destination, steady_clock::now() + patience, {})};
        return socket.isOpen() ? std::nullopt : std::optional{TransferProblem::other};
    } catch (const TransferError& error) {
        return error.problem;
    }
}

class ConnectorTest : public testing::Test {
protected:
    ~ConnectorTest() override
    {
        close(input[0]);
        close(input[1]);
    }

    /// Of a connector that this process started, whose end is waited for.
    static int endOf(pid_t process)
    {
        int status = 0;
        waitpid(process, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

    std::array<int, 2> input = [] {
        std::array<int, 2> ends{};
        static_cast<void>(pipe2(ends.data(), O_CLOEXEC));
        return ends;
    }();
    Port server{8};
    Port nobody{std::nullopt};
    Port silent{0};
};

} // namespace

TEST_F(ConnectorTest, handsOverConnectedSocketsToItsDestinationsAndNobodyElse)
{
    const Destination unknown{.host = "unheard..of", .port = 443};
    const Connector connector
        = Connector::start({server.destination(), nobody.destination(), unknown}, input[0]);
    const Files::Descriptor socket{connector.dial(server.destination(), steady_clock::now() + 10s, {})};
    sockaddr_in peer{};
    socklen_t size = sizeof peer;
    EXPECT_EQ(getpeername(socket.number(), generic(peer), &size), 0);
    EXPECT_EQ(ntohs(peer.sin_port), server.destination().port);
    EXPECT_EQ(problem(connector, nobody.destination()), TransferProblem::refused);
    EXPECT_EQ(problem(connector, unknown), TransferProblem::nameUnknown);
    EXPECT_EQ(problem(connector, silent.destination()), TransferProblem::noRoute);
    const Destination otherPort{.host = "127.0.0.1", .port = 9};
    EXPECT_EQ(problem(connector, otherPort), TransferProblem::noRoute);
}

TEST_F(ConnectorTest, aSilentHostIsLeftAtTheDeadlineOrAtOnce)
{
    silent.fill();
    const Connector connector = Connector::start({silent.destination()}, input[0]);
    EXPECT_EQ(problem(connector, silent.destination(), 100ms), TransferProblem::timedOut);

    std::stop_source stop;
    std::jthread stopping{[&] {
        std::this_thread::sleep_for(50ms);
        stop.request_stop();
    }};
    const auto start = steady_clock::now();
    EXPECT_THROW(connector.dial(silent.destination(), start + 1h, stop.get_token()), CancellationError);
    EXPECT_LT(steady_clock::now() - start, 10s);
}

TEST_F(ConnectorTest, manyAreDialledAtOnce)
{
    const Connector connector = Connector::start({server.destination(), silent.destination()}, input[0]);
    silent.fill();
    std::array<std::jthread, 32> dialling;
    std::atomic<int> left = 0;
    std::stop_source stop;
    for (std::jthread& thread : dialling) {
        thread = std::jthread{[&] {
            try {
                connector.dial(silent.destination(), steady_clock::now() + 1h, stop.get_token());
            } catch (const CancellationError&) {
                ++left;
            }
        }};
    }
    EXPECT_EQ(problem(connector, server.destination()), std::nullopt);
    stop.request_stop();
    for (std::jthread& thread : dialling)
        thread.join();
    EXPECT_EQ(left, 32);
}

TEST_F(ConnectorTest, itEndsWithItsChannel)
{
    pid_t process = -1;
    {
        const Connector connector = Connector::start({server.destination()}, input[0]);
        process = test::ProcessStatus::children().back();
    }
    EXPECT_EQ(endOf(process), 0);
}

TEST_F(ConnectorTest, oneThatHasGoneIsSaidToConnectNobody)
{
    const Connector connector = Connector::start({server.destination()}, input[0]);
    const pid_t process = test::ProcessStatus::children().back();
    kill(process, SIGKILL);
    EXPECT_EQ(endOf(process), -SIGKILL);
    EXPECT_EQ(problem(connector, server.destination()), TransferProblem::noRoute);
}

TEST(Race, deadAddressesAreRunPastAndTheFirstLiveOneWins)
{
    Port live{8};
    Port dead{std::nullopt};
    Port silent{0};
    silent.fill();
    addrinfo last = live.found();
    addrinfo second = silent.found(&last);
    const addrinfo first = dead.found(&second);
    std::array<int, 2> channel{};
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET, 0, channel.data()), 0);
    Race race{&first};
    const auto start = steady_clock::now();
    EXPECT_TRUE(race.run(channel[0]).isOpen());
    EXPECT_GE(steady_clock::now() - start, 190ms) << "the silent one had its head start";
    EXPECT_LT(steady_clock::now() - start, 10s);

    const addrinfo alone = dead.found();
    Race hopeless{&alone};
    EXPECT_FALSE(hopeless.run(channel[0]).isOpen());
    EXPECT_EQ(hopeless.error(), ECONNREFUSED);

    close(channel[1]);
    const addrinfo waited = silent.found();
    Race given{&waited};
    EXPECT_FALSE(given.run(channel[0]).isOpen());
    close(channel[0]);
}

} // namespace skyvane::Extension
