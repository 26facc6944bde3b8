#pragma once

#include "platform/net/handles.h"

#include <mutex>

namespace skyvane {

/// The connection that the last transfer left open. One transfer takes it; those beside it make their own.
class RestingConnection {
public:
    RestingConnection() = default;
    ~RestingConnection();
    RestingConnection(const RestingConnection&) = delete;
    RestingConnection& operator=(const RestingConnection&) = delete;

    /// What makes connections; it has the resting one unless another transfer took it.
    MultiHandle take();

    /// After a transfer that went well.
    void keep(MultiHandle connection);

private:
    std::mutex m_mutex;
    MultiHandle m_resting;
};

} // namespace skyvane
