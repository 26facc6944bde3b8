#include "widgets/extension/channel.h"

#include <sys/socket.h>
#include <sys/uio.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace skyvane::Extension::Channel {

namespace {

/// Room for one descriptor beside the message.
using Aside = std::array<std::byte, CMSG_SPACE(sizeof(int))>;

} // namespace

Ends make()
{
    std::array<int, 2> ends{-1, -1};
    socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data());
    return {.one = Files::Descriptor{ends[0]}, .other = Files::Descriptor{ends[1]}};
}

bool sendBytes(int channel, std::span<const std::byte> message, int descriptor)
{
    // The kernel reads it only; the interface is older than that distinction.
    iovec bytes{.iov_base = const_cast<std::byte*>(message.data()), .iov_len = message.size()};
    alignas(cmsghdr) Aside aside{};
    msghdr envelope{};
    envelope.msg_iov = &bytes;
    envelope.msg_iovlen = 1;
    if (descriptor >= 0) {
        envelope.msg_control = aside.data();
        envelope.msg_controllen = aside.size();
        cmsghdr* const header = CMSG_FIRSTHDR(&envelope);
        header->cmsg_level = SOL_SOCKET;
        header->cmsg_type = SCM_RIGHTS;
        header->cmsg_len = CMSG_LEN(sizeof descriptor);
        std::memcpy(CMSG_DATA(header), &descriptor, sizeof descriptor);
    }
    return sendmsg(channel, &envelope, MSG_NOSIGNAL | MSG_DONTWAIT) == static_cast<ssize_t>(message.size());
}

std::optional<Files::Descriptor> receiveBytes(int channel, std::span<std::byte> message)
{
    iovec bytes{.iov_base = message.data(), .iov_len = message.size()};
    alignas(cmsghdr) Aside aside{};
    msghdr envelope{};
    envelope.msg_iov = &bytes;
    envelope.msg_iovlen = 1;
    envelope.msg_control = aside.data();
    envelope.msg_controllen = aside.size();
    ssize_t size = -1;
    do
        size = recvmsg(channel, &envelope, MSG_CMSG_CLOEXEC);
    while (size < 0 && errno == EINTR);
    Files::Descriptor descriptor;
    const cmsghdr* const header = size >= 0 ? CMSG_FIRSTHDR(&envelope) : nullptr;
    if (header != nullptr && header->cmsg_level == SOL_SOCKET && header->cmsg_type == SCM_RIGHTS) {
        int number = -1;
        std::memcpy(&number, CMSG_DATA(header), sizeof number);
        descriptor = Files::Descriptor{number};
    }
    if (size != static_cast<ssize_t>(message.size()))
        return std::nullopt;
    return descriptor;
}

} // namespace skyvane::Extension::Channel
