#include "desk/bus/single_instance.h"

#include <utility>

namespace skyvane {

SingleInstance::SingleInstance(QDBusConnection bus, QString name)
    : m_bus(std::move(bus))
    , m_name(std::move(name))
    , m_isFirst(!m_bus.isConnected() || m_bus.registerService(m_name))
{
}

SingleInstance::~SingleInstance()
{
    if (m_isFirst && m_bus.isConnected())
        m_bus.unregisterService(m_name);
}

} // namespace skyvane
