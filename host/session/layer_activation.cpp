#include "host/session/layer_activation.h"

#include "host/session/wayland_protocols.h"

#include <QGuiApplication>

namespace skyvane::LayerActivation {

namespace {

using Activation = Wayland::Object<Wayland::End<Wayland::Request::destroyActivation>>;
using Token = Wayland::Object<Wayland::End<Wayland::Request::destroyActivationToken>>;

struct Listener {
    void (*done)(void*, wl_proxy*, const char* token);
};

void take(void* data, wl_proxy*, const char* token)
{
    *static_cast<QString*>(data) = QString::fromUtf8(token);
}

} // namespace

QString newToken()
{
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QWaylandApplication>();
    const Activation activation{Wayland::bind(native->display(), Wayland::activation)};
    wl_seat* seat = native->lastInputSeat();
    if (!activation || seat == nullptr)
        return {};
    const Token token{
        Wayland::make(activation, Wayland::Request::getActivationToken, Wayland::activationToken, nullptr)};
    QString text;
    static constexpr Listener listener{.done = take};
    wl_proxy_add_listener(
        token.get(), reinterpret_cast<void (**)()>(const_cast<Listener*>(&listener)), &text);
    Wayland::request(token, Wayland::Request::setSerial, native->lastInputSerial(), seat);
    Wayland::request(token, Wayland::Request::commit);
    wl_display_roundtrip(native->display());
    return text;
}

} // namespace skyvane::LayerActivation
