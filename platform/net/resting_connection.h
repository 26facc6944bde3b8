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
};

/// The connection that the last transfer left open. One transfer takes it; those beside it make their own.
class RestingConnection {
public:
    RestingConnection() = default;
    ~RestingConnection();
    RestingConnection(const RestingConnection&) = delete;
    RestingConnection& operator=(const RestingConnection&) = delete;

    /// Has the resting one unless another transfer took it.
    Connections take();

    /// After a transfer that went well.
    void keep(Connections connections);

private:
    std::mutex m_mutex;
    Connections m_resting;
};

} // namespace skyvane
