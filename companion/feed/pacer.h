#pragma once

#include "platform/net/transport.h"

#include <chrono>
#include <condition_variable>
#include <list>
#include <map>
#include <mutex>
#include <string>

namespace skyvane {

/// Rate limiter: one request at a time to each host, in the order in which they came, and a rest after every
/// one, as the sources ask.
class Pacer {
public:
    explicit Pacer(Transport transport, std::chrono::milliseconds rest = std::chrono::seconds{1});

    /// Waits for the request's turn, sends it, and returns the answer. Called from any thread but the event
    /// loop's. Throws `CancellationError` at once when `stop` asks for it, and what the transport throws.
    URLResponse data(const URLRequest& request, std::stop_token stop);

    /// A transport that goes through `data` of this pacer, which must outlive it.
    Transport transport();

private:
    using Clock = std::chrono::steady_clock;

    struct Host {
        std::list<const URLRequest*> line{}; ///< In order; the first has its turn.
        Clock::time_point restedAt{};
    };

    class Turn;

    Transport m_transport;
    std::chrono::milliseconds m_rest;
    std::mutex m_mutex; ///< Guards what follows.
    std::condition_variable_any m_changed;
    std::map<std::string, Host> m_hosts;
};

} // namespace skyvane
