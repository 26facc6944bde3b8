#pragma once

#include "platform/files/descriptor.h"

#include <cstdint>
#include <mutex>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

namespace skyvane::test {

/// Listens on this machine and takes every connection on to port 443 of 127.0.0.1: at once, or as a proxy
/// once it was asked to, by HTTP's CONNECT, SOCKS 5 or SOCKS 4a, and told a name.
class Relay {
public:
    enum class Manner { atOnce, proxy };

    /// On 127.0.0.1, or on ::1.
    Relay(Manner manner, bool isOnNewerAddress, std::uint16_t port);
    ~Relay();
    Relay(const Relay&) = delete;
    Relay& operator=(const Relay&) = delete;

    /// The hosts that it was asked for so far; of one that connects at once, "".
    std::vector<std::string> hosts() const;

private:
    void accept(const std::stop_token& stop);
    void serve(Files::Descriptor client, const std::stop_token& stop);
    std::string takeOrder(int client) const;

    Manner m_manner;
    Files::Descriptor m_listener;
    mutable std::mutex m_mutex; ///< Guards what follows.
    std::vector<std::string> m_hosts;
    std::vector<std::jthread> m_serving;
    std::jthread m_accepting;
};

} // namespace skyvane::test
