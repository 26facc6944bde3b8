#include "widgets/extension/connector.h"

#include "platform/net/transfer_error.h"
#include "widgets/extension/channel.h"
#include "widgets/extension/connecting.h"

#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <string>
#include <system_error>
#include <utility>

namespace skyvane::Extension {

namespace {

using Connecting::Order;
using Connecting::Reply;
using std::chrono::steady_clock;

/// Until the reply, the end of the channel or the deadline; false for the latter.
bool waitForReply(int channel, steady_clock::time_point deadline)
{
    while (true) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - steady_clock::now());
        pollfd reply{.fd = channel, .events = POLLIN, .revents = 0};
        const int ready
            = poll(&reply, 1, static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0)));
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

/// Why there is no connection, in the words of the system.
TransferError failure(const Destination& destination, const Reply& reply)
{
    if (reply.lookUp != 0)
        return {TransferProblem::nameUnknown,
            "Could not resolve " + destination.host + ": " + gai_strerror(reply.lookUp)};
    const TransferProblem problem
        = reply.connection == ECONNREFUSED ? TransferProblem::refused : TransferProblem::noRoute;
    return {problem,
        "Could not connect to " + destination.host + ": "
            + std::generic_category().message(reply.connection)};
}

} // namespace

Connector::Connector(Files::Descriptor orders, std::vector<Destination> destinations)
    : m_orders(std::move(orders)), m_destinations(std::move(destinations))
{
}

Connector Connector::start(std::vector<Destination> destinations, int input)
{
    Channel::Ends ends = Channel::make();
    const pid_t client = getpid();
    if (ends.one.isOpen() && fork() == 0) {
        ends.one.close();
        Connecting::serve(destinations, {.orders = ends.other.number(), .input = input, .client = client});
    }
    return {std::move(ends.one), std::move(destinations)};
}

int Connector::dial(
    const Destination& destination, steady_clock::time_point deadline, const std::stop_token& stop) const
{
    const auto place = std::ranges::find(m_destinations, destination);
    if (place == m_destinations.end())
        throw TransferError{TransferProblem::noRoute, "There is no way to " + destination.host};
    Channel::Ends ends = Channel::make();
    const Order order{.destination = static_cast<std::uint8_t>(place - m_destinations.begin())};
    if (!ends.one.isOpen() || !Channel::send(m_orders.number(), order, ends.other.number()))
        throw TransferError{TransferProblem::noRoute, "Nobody connects"};
    ends.other.close();

    const int channel = ends.one.number();
    const std::stop_callback hangUp{stop, [channel] { shutdown(channel, SHUT_RDWR); }};
    const bool isThere = waitForReply(channel, deadline);
    if (stop.stop_requested())
        throw CancellationError{};
    if (!isThere)
        throw TransferError{TransferProblem::timedOut, "The connection timed out"};
    auto reply = Channel::receive<Reply>(channel);
    if (!reply)
        throw TransferError{TransferProblem::noRoute, "Nobody connects"};
    if (!reply->descriptor.isOpen())
        throw failure(destination, reply->message);
    return reply->descriptor.release();
}

} // namespace skyvane::Extension
