#include "host/service/ask_host.h"

#include "desk/bus/single_instance.h"

namespace skyvane {

std::string askHost(const QDBusConnection& bus, const HostCall& call)
{
    if (!bus.isConnected())
        throw HostError{"there is no session bus to ask the running host on"};
    const auto reply = SingleInstance::askOwner<HostInterface>(bus, BusName::host(), call);
    if (!reply.isError())
        return reply.value().toStdString();
    if (reply.error().type() == QDBusError::ServiceUnknown)
        throw HostError{"no host is running in this session"};
    throw HostError{reply.error().message().toStdString()};
}

} // namespace skyvane
