#pragma once

#include "platform/files/descriptor.h"

#include <cstddef>
#include <optional>
#include <span>
#include <type_traits>

namespace skyvane::Extension::Channel {

/// Both ends of a channel: what is sent into one comes out of the other, message by message. Neither is open
/// where the system has none left.
struct Ends {
    Files::Descriptor one{};
    Files::Descriptor other{};
};
Ends make();

bool sendBytes(int channel, std::span<const std::byte> message, int descriptor);
std::optional<Files::Descriptor> receiveBytes(int channel, std::span<std::byte> message);

/// Sends a message and, unless it is -1, a descriptor (SCM_RIGHTS). Never waits; whether it went.
template <class Message>
bool send(int channel, const Message& message, int descriptor)
{
    static_assert(std::is_trivially_copyable_v<Message>);
    return sendBytes(channel, std::as_bytes(std::span{&message, 1}), descriptor);
}

template <class Message>
struct Received {
    Message message{};
    Files::Descriptor descriptor{}; ///< Not open where none came along.
};

/// The next message, waited for; absent at the end of the channel and for one of another size.
template <class Message>
std::optional<Received<Message>> receive(int channel)
{
    static_assert(std::is_trivially_copyable_v<Message>);
    Received<Message> received;
    auto descriptor = receiveBytes(channel, std::as_writable_bytes(std::span{&received.message, 1}));
    if (!descriptor)
        return std::nullopt;
    received.descriptor = std::move(*descriptor);
    return received;
}

} // namespace skyvane::Extension::Channel
