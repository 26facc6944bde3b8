#pragma once

#include "platform/files/descriptor.h"

#include <netdb.h>
#include <poll.h>

#include <cstddef>
#include <vector>

namespace skyvane::Extension {

/// Happy eyeballs: tries a host's addresses, of both kinds by turns, the next one as soon as the last has
/// failed or shown no success for a fifth of a second. The first that is connected wins.
class Race {
public:
    explicit Race(const addrinfo* addresses);
    ~Race();
    Race(const Race&) = delete;
    Race& operator=(const Race&) = delete;

    /// The connected socket; not open when all have failed, or when the other end of the channel is closed.
    Files::Descriptor run(int channel);

    /// Why the last one failed.
    int error() const { return m_error; }

private:
    bool hasMore() const { return m_next < m_addresses.size(); }
    void startNext();
    Files::Descriptor takeWinner();

    std::vector<const addrinfo*> m_addresses;
    std::size_t m_next = 0;
    std::vector<pollfd> m_watched; ///< The channel, then the attempts' sockets.
    int m_error = 0;
};

} // namespace skyvane::Extension
