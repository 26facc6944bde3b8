#pragma once

#include "platform/net/authorities.h"
#include "platform/net/handles.h"

#include <mutex>

namespace skyvane {

/// What makes connections, and what their certificates are verified against: one that was made on other terms
/// serves no request.
struct Connections {
    MultiHandle handle;
    Trust trust = Trust::folder;
    int socket = -1; ///< Of the one that rests; -1 without.
};

/// Keep-alive: the connection that the last transfer left open. One transfer takes it; those that run beside
/// that one make their own. One whose server spoke without being asked is not used again: what it said would
/// be taken for the next answer.
class RestingConnection {
public:
    RestingConnection() = default;
    ~RestingConnection();
    RestingConnection(const RestingConnection&) = delete;
    RestingConnection& operator=(const RestingConnection&) = delete;

    /// Connections for one transfer: the resting one among them unless another transfer has it.
    Connections take();

    /// Keeps the connections of a transfer that went well for the next one.
    void keep(Connections connections);

private:
    std::mutex m_mutex;
    Connections m_resting;
};

} // namespace skyvane
