#include "widgets/extension/connecting.h"

#include "widgets/extension/channel.h"
#include "widgets/extension/confinement.h"
#include "widgets/extension/race.h"

#include <netdb.h>
#include <poll.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <memory>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

namespace skyvane::Extension::Connecting {

namespace {

/// Look-ups at once: one that nobody waits for any more cannot be interrupted.
constexpr int mostAtOnce = 128;

using Addresses = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

std::pair<Reply, Files::Descriptor> connect(const Destination& destination, int channel)
{
    addrinfo wanted{};
    wanted.ai_socktype = SOCK_STREAM;
    wanted.ai_flags = AI_NUMERICSERV;
    addrinfo* found = nullptr;
    const std::string port = std::to_string(destination.port);
    const int error = getaddrinfo(destination.host.c_str(), port.c_str(), &wanted, &found);
    const Addresses addresses{found, &freeaddrinfo};
    if (error != 0)
        return {Reply{.lookUp = error}, Files::Descriptor{}};
    Race race{addresses.get()};
    Files::Descriptor connected = race.run(channel);
    return {Reply{.connection = connected.isOpen() ? 0 : race.error()}, std::move(connected)};
}

/// Carries out orders, each on a thread of its own.
class Crew {
public:
    explicit Crew(const std::vector<Destination>& destinations) : m_destinations(destinations) { }

    /// One that makes no sense, or is one too many, is dropped: its channel ends.
    void take(Channel::Received<Order> order)
    {
        const std::size_t index = order.message.destination;
        if (!order.descriptor.isOpen() || index >= m_destinations.size() || m_working >= mostAtOnce)
            return;
        ++m_working;
        try {
            std::thread{[this, index, channel = std::move(order.descriptor)] {
                const auto [reply, connected] = connect(m_destinations[index], channel.number());
                Channel::send(channel.number(), reply, connected.number());
                --m_working;
            }}.detach();
        } catch (const std::system_error&) {
            --m_working;
        }
    }

private:
    const std::vector<Destination>& m_destinations;
    std::atomic<int> m_working{0};
};

/// Ends the client some seconds after its input, which is where a healthy one ended long before.
class Watchdog {
public:
    explicit Watchdog(pid_t client) : m_client(client) { }

    void start() { m_deadline = std::chrono::steady_clock::now() + patience; }
    /// In milliseconds, as `poll` has it.
    int timeout() const
    {
        using namespace std::chrono;
        if (m_deadline == never)
            return -1;
        const auto left = ceil<milliseconds>(m_deadline - steady_clock::now());
        return static_cast<int>(std::max<milliseconds::rep>(left.count(), 0));
    }
    void bark() const { kill(m_client, SIGKILL); }

private:
    static constexpr std::chrono::seconds patience{5};
    static constexpr auto never = std::chrono::steady_clock::time_point::max();

    pid_t m_client;
    std::chrono::steady_clock::time_point m_deadline = never;
};

/// Also when the client is killed while this process is stopped.
bool dieWith(pid_t client)
{
    return prctl(PR_SET_PDEATHSIG, SIGKILL, 0, 0, 0) == 0 && getppid() == client;
}

} // namespace

void serve(const std::vector<Destination>& destinations, const Surroundings& surroundings)
{
    if (!dieWith(surroundings.client))
        _exit(1);
    confineConnector(surroundings.orders);
    Crew crew{destinations};
    Watchdog watchdog{surroundings.client};
    std::array<pollfd, 2> watched{{
        {.fd = surroundings.orders, .events = POLLIN, .revents = 0},
        {.fd = surroundings.input, .events = POLLRDHUP, .revents = 0},
    }};
    while (true) {
        const int ready = poll(watched.data(), watched.size(), watchdog.timeout());
        if (ready == 0) {
            watchdog.bark();
            _exit(0);
        }
        if (ready > 0 && watched[1].revents != 0) {
            watched[1].fd = -1;
            watchdog.start();
        }
        if (ready > 0 && watched[0].revents != 0) {
            auto order = Channel::receive<Order>(surroundings.orders);
            if (!order)
                _exit(0);
            crew.take(std::move(*order));
        }
    }
}

} // namespace skyvane::Extension::Connecting
