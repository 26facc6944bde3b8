#include "host/session/root_watch.h"

#include "desk/x11.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace skyvane {

/// The toolkit has asked the server for these events already.
RootWatch::RootWatch(std::function<void()> areasChanged, std::function<void()> managerChanged)
    : m_areasChanged(std::move(areasChanged)), m_managerChanged(std::move(managerChanged))
{
    xcb_connection_t* connection = X11::connection();
    if (connection == nullptr)
        return;
    const auto [area, areas, abilities]
        = X11::atoms<3>(connection, {"_NET_WORKAREA", "_GTK_WORKAREAS_D0", "_NET_SUPPORTED"});
    m_areas = {area, areas};
    m_abilities = abilities;
    m_root = X11::root(connection);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

RootWatch::~RootWatch()
{
    QCoreApplication::instance()->removeNativeEventFilter(this);
}

bool RootWatch::nativeEventFilter(const QByteArray& type, void* message, qintptr*)
{
    constexpr std::uint8_t sentByClient = 0x80;
    if (type != "xcb_generic_event_t")
        return false;
    const auto* event = static_cast<const xcb_property_notify_event_t*>(message);
    if ((event->response_type & ~sentByClient) != XCB_PROPERTY_NOTIFY || event->window != m_root)
        return false;
    if (std::ranges::find(m_areas, event->atom) != m_areas.end())
        m_areasChanged();
    else if (event->atom == m_abilities)
        m_managerChanged();
    return false;
}

} // namespace skyvane
