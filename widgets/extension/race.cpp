#include "widgets/extension/race.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace skyvane::Extension {

namespace {

constexpr std::size_t most = 16; ///< Addresses of a host that are tried.
constexpr int headStart = 200; ///< Milliseconds.

/// As the look-up has them, but for a change of kind at every step while there are two.
std::vector<const addrinfo*> byTurns(const addrinfo* list)
{
    std::vector<const addrinfo*> preferred;
    std::vector<const addrinfo*> others;
    for (const addrinfo* entry = list; entry != nullptr; entry = entry->ai_next)
        (entry->ai_family == list->ai_family ? preferred : others).push_back(entry);
    std::vector<const addrinfo*> all;
    for (std::size_t index = 0; index < std::max(preferred.size(), others.size()); ++index) {
        for (const auto* kind : {&preferred, &others}) {
            if (index < kind->size())
                all.push_back((*kind)[index]);
        }
    }
    all.resize(std::min(all.size(), most));
    return all;
}

int errorOf(int socket)
{
    int error = 0;
    socklen_t size = sizeof error;
    return getsockopt(socket, SOL_SOCKET, SO_ERROR, &error, &size) == 0 ? error : errno;
}

} // namespace

Race::Race(const addrinfo* addresses) : m_addresses(byTurns(addresses)) { }

Race::~Race()
{
    for (std::size_t index = 1; index < m_watched.size(); ++index)
        close(m_watched[index].fd);
}

Files::Descriptor Race::run(int channel)
{
    m_watched = {{.fd = channel, .events = 0, .revents = 0}};
    startNext();
    while (m_watched.size() > 1) {
        const std::size_t attempts = m_watched.size();
        const int ready = poll(m_watched.data(), attempts, hasMore() ? headStart : -1);
        if (m_watched.front().revents != 0 || (ready < 0 && errno != EINTR))
            break;
        if (Files::Descriptor winner = takeWinner(); winner.isOpen())
            return winner;
        if (ready == 0 || m_watched.size() < attempts)
            startNext();
    }
    return Files::Descriptor{};
}

/// Those whose connection fails at once are passed over.
void Race::startNext()
{
    while (hasMore()) {
        const addrinfo& address = *m_addresses[m_next++];
        Files::Descriptor attempt{
            socket(address.ai_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, address.ai_protocol)};
        if (attempt.isOpen()
            && (connect(attempt.number(), address.ai_addr, address.ai_addrlen) == 0
                || errno == EINPROGRESS)) {
            m_watched.push_back({.fd = attempt.release(), .events = POLLOUT, .revents = 0});
            return;
        }
        m_error = errno;
    }
}

Files::Descriptor Race::takeWinner()
{
    for (std::size_t index = m_watched.size() - 1; index > 0; --index) {
        if (m_watched[index].revents == 0)
            continue;
        Files::Descriptor ended{m_watched[index].fd};
        m_watched.erase(m_watched.begin() + static_cast<std::ptrdiff_t>(index));
        const int error = errorOf(ended.number());
        if (error == 0)
            return ended;
        m_error = error;
    }
    return Files::Descriptor{};
}

} // namespace skyvane::Extension
