#include "host/session/compositing_watch.h"

#include "desk/x11.h"

#include <QCoreApplication>

#include <utility>
#include <xcb/xfixes.h>

namespace skyvane {

CompositingWatch::CompositingWatch(std::function<void()> changed) : m_changed(std::move(changed))
{
    xcb_connection_t* connection = X11::connection();
    if (connection == nullptr)
        return;
    m_compositor = X11::atoms<1>(connection, {"_NET_WM_CM_S0"}).front();
    const xcb_query_extension_reply_t* fixes = xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (fixes == nullptr || fixes->present == 0)
        return;
    m_event = static_cast<std::uint8_t>(fixes->first_event + XCB_XFIXES_SELECTION_NOTIFY);
    // The toolkit asks for the same events: the server keeps one mask a window, which must not lose any.
    xcb_xfixes_select_selection_input(connection, X11::root(connection), m_compositor,
        XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
            | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
            | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

CompositingWatch::~CompositingWatch()
{
    QCoreApplication::instance()->removeNativeEventFilter(this);
}

bool CompositingWatch::isActive() const
{
    xcb_connection_t* connection = X11::connection();
    if (connection == nullptr)
        return true;
    const auto answer = X11::reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, m_compositor), nullptr));
    return answer && answer->owner != XCB_WINDOW_NONE;
}

bool CompositingWatch::nativeEventFilter(const QByteArray& type, void* message, qintptr*)
{
    constexpr std::uint8_t sentByClient = 0x80;
    if (m_event == 0 || type != "xcb_generic_event_t")
        return false;
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & ~sentByClient) == m_event
        && static_cast<const xcb_xfixes_selection_notify_event_t*>(message)->selection == m_compositor)
        m_changed();
    return false;
}

} // namespace skyvane
