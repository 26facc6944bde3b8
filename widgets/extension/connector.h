#pragma once

#include "platform/files/descriptor.h"
#include "platform/net/dialer.h"

#include <chrono>
#include <stop_token>
#include <vector>

namespace skyvane::Extension {

/// A process of its own, started by this one before it is confined, that looks up a few hosts, connects to
/// them, and hands over connected sockets: whoever takes over the process that reads what strangers send
/// reaches nobody but those. It ends with this process, and ends this process when that is still there some
/// seconds after the end of its input, hung or stopped.
class Connector {
public:
    /// To be called by the program's first thread, while there is no other. `input` is watched for its end.
    static Connector start(std::vector<Destination> destinations, int input);

    /// As a `Dialer` does; every other destination than those is out of reach.
    int dial(const Destination& destination, std::chrono::steady_clock::time_point deadline,
        const std::stop_token& stop) const;

    /// The end of the channel to it.
    int channel() const { return m_orders.number(); }

private:
    Connector(Files::Descriptor orders, std::vector<Destination> destinations);

    Files::Descriptor m_orders;
    std::vector<Destination> m_destinations;
};

} // namespace skyvane::Extension
