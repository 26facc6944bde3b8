#pragma once

#include "platform/files/descriptor.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <stop_token>
#include <system_error>
#include <thread>

namespace skyvane::test {

/// Takes every question to the machine's name server, and answers none or that it has failed.
class NameServer {
public:
    enum class Habit { silent, failing };

    explicit NameServer(Habit habit)
    {
        constexpr std::uint16_t domain = 53;
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(domain);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (bind(m_socket.number(), generic(address), sizeof address) != 0)
            throw std::system_error{errno, std::generic_category(), "bind"};
        if (habit == Habit::failing)
            m_thread = std::jthread{[this](const std::stop_token& stop) { fail(stop); }};
    }

    bool waitForQuestion() const
    {
        constexpr int patience = 10'000; // Milliseconds.
        return hasQuestion(patience);
    }

private:
    template <class Address>
    static sockaddr* generic(Address& address)
    {
        void* bytes = &address;
        return static_cast<sockaddr*>(bytes);
    }

    bool hasQuestion(int milliseconds) const
    {
        pollfd question{.fd = m_socket.number(), .events = POLLIN, .revents = 0};
        return poll(&question, 1, milliseconds) > 0;
    }

    /// Sends each question back as an answer with the code SERVFAIL.
    void fail(const std::stop_token& stop) const
    {
        constexpr std::size_t flags = 2;
        while (!stop.stop_requested()) {
            constexpr int shortly = 20;
            if (!hasQuestion(shortly))
                continue;
            std::array<std::uint8_t, 512> message{};
            sockaddr_storage client{};
            socklen_t size = sizeof client;
            const ssize_t length
                = recvfrom(m_socket.number(), message.data(), message.size(), 0, generic(client), &size);
            if (length < 12)
                continue;
            message[flags] |= 0x80;
            message[flags + 1] = 0x82;
            sendto(m_socket.number(), message.data(), static_cast<std::size_t>(length), 0, generic(client),
                size);
        }
    }

    Files::Descriptor m_socket{socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)};
    std::jthread m_thread{};
};

} // namespace skyvane::test
