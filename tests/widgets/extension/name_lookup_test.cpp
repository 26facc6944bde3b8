#include "tests/widgets/extension/scenario.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

namespace skyvane::test {

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

/// Takes every question to the machine's name server and answers none.
class SilentNameServer {
public:
    SilentNameServer()
    {
        constexpr std::uint16_t domain = 53;
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(domain);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (bind(m_socket, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
            throw std::system_error{errno, std::generic_category(), "bind"};
    }
    ~SilentNameServer() { close(m_socket); }
    SilentNameServer(const SilentNameServer&) = delete;
    SilentNameServer& operator=(const SilentNameServer&) = delete;

    bool waitForQuestion() const
    {
        constexpr int patience = 10'000; // Milliseconds.
        pollfd question{.fd = m_socket, .events = POLLIN, .revents = 0};
        return poll(&question, 1, patience) > 0;
    }

private:
    int m_socket = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
};

/// Leaves every name to the name server. The file is this test program's own.
class WithoutHosts {
public:
    WithoutHosts() { write("127.0.0.1 localhost\n"); }
    ~WithoutHosts() { write(m_before); }
    WithoutHosts(const WithoutHosts&) = delete;
    WithoutHosts& operator=(const WithoutHosts&) = delete;

private:
    static std::string read()
    {
        std::ifstream file{"/etc/hosts"};
        return {std::istreambuf_iterator<char>{file}, {}};
    }
    static void write(const std::string& content) { std::ofstream{"/etc/hosts"} << content; }

    std::string m_before = read();
};

} // namespace

TEST_F(ExtensionScenario, cancellationsAndTheEndOfInputAreHeardInANameLookUp)
{
    constexpr int most = 64;
    setHome();
    const SilentNameServer nameServer;
    const WithoutHosts hosts;
    for (int id = 0; id < most; ++id)
        stage.ask(id, "widgets.timeline", radar);
    ASSERT_TRUE(nameServer.waitForQuestion());
    const auto start = steady_clock::now();
    stage.cancel(0);
    expectError(-32800, 0);
    stage.closeInput();
    EXPECT_EQ(stage.exitStatus(10s), 0);
    EXPECT_LT(steady_clock::now() - start, 2s) << "a look-up would last eight";
    for (int id = 1; id < most; ++id)
        EXPECT_EQ(stage.hear()["error"]["code"], -32800);
}

} // namespace skyvane::test
