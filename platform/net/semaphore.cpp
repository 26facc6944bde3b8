#include "platform/net/semaphore.h"

namespace skyvane {

Semaphore::Permit::Permit(Semaphore& semaphore, const std::stop_token& stop) : m_semaphore(semaphore)
{
    std::unique_lock lock{m_semaphore.m_mutex};
    m_isGranted = m_semaphore.m_changed.wait(lock, stop, [this] { return m_semaphore.m_free > 0; });
    m_semaphore.m_free -= m_isGranted ? 1 : 0;
}

Semaphore::Permit::~Permit()
{
    if (!m_isGranted)
        return;
    {
        const std::lock_guard lock{m_semaphore.m_mutex};
        ++m_semaphore.m_free;
    }
    m_semaphore.m_changed.notify_one();
}

} // namespace skyvane
