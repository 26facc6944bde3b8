#pragma once

#include "platform/files/shared_turn.h"
#include "platform/net/transport.h"

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <list>
#include <map>
#include <mutex>
#include <optional>
#include <string>

namespace skyvane {

/// Rate limiter: one request at a time to each host, in the order in which they came, and a rest after every
/// one, as the sources ask; of those that the widgets ask as well, over all programs of the user. A host that
/// refuses is left alone for as long as it asks, else for a minute, doubling with each refusal in a row.
class Pacer {
public:
    struct Pace {
        std::chrono::milliseconds rest{std::chrono::seconds{1}};
        std::chrono::milliseconds refusal{std::chrono::minutes{1}}; ///< After the first.
        std::chrono::milliseconds longestRefusal{std::chrono::hours{1}}; ///< Unless the host asks for more.
        std::chrono::milliseconds patience{std::chrono::seconds{20}}; ///< For the turn of other programs.
        std::filesystem::path sharedTurn = SharedTurn::file();
    };

    explicit Pacer(Transport transport) : Pacer(std::move(transport), Pace{}) { }
    Pacer(Transport transport, Pace pace);

    /// Waits for the request's turn, sends it, and returns the answer; that of the last refusal while the
    /// host is left alone. Called from any thread but the event loop's. Throws `CancellationError` at once
    /// when `stop` asks for it, and what the transport throws.
    URLResponse data(const URLRequest& request, std::stop_token stop);

    /// A transport that goes through `data` of this pacer, which must outlive it.
    Transport transport();

private:
    using Clock = std::chrono::steady_clock;

    struct Host {
        std::list<const URLRequest*> line{}; ///< In order; the first has its turn.
        Clock::time_point restedAt{};
        int refusals = 0; ///< In a row.
        int refusal = 0; ///< Status of the last.
        Clock::time_point welcomeAt{}; ///< After a refusal.
    };

    class Turn;

    std::optional<SharedTurn> awaitSharedTurn(const std::string& host, const std::stop_token& stop);

    Transport m_transport;
    Pace m_pace;
    std::mutex m_mutex; ///< Guards what follows.
    std::condition_variable_any m_changed;
    std::map<std::string, Host> m_hosts;
};

} // namespace skyvane
