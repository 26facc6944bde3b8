#pragma once

#include <cstdint>
#include <memory>

#include <wayland-client.h>

/// What the host says to a compositor itself, in two protocols that libwayland does not bring along:
/// zwlr_layer_shell_v1, of which the toolkit's library only makes windows, and xdg_activation_v1.
namespace skyvane::Wayland {

extern const wl_interface layerShell; ///< zwlr_layer_shell_v1
extern const wl_interface layerSurface; ///< zwlr_layer_surface_v1
extern const wl_interface activation; ///< xdg_activation_v1
extern const wl_interface activationToken; ///< xdg_activation_token_v1

/// The numbers of requests.
namespace Request {
enum LayerShell : std::uint32_t { getLayerSurface = 0 };
enum LayerSurface : std::uint32_t { setAnchor = 1, ackConfigure = 6, destroyLayerSurface = 7 };
enum Activation : std::uint32_t { destroyActivation = 0, getActivationToken = 1 };
enum ActivationToken : std::uint32_t { setSerial = 0, commit = 3, destroyActivationToken = 4 };
} // namespace Request

/// Ends an object here and in the compositor, by the request of this number.
template <std::uint32_t destroy>
struct End {
    void operator()(wl_proxy* proxy) const
    {
        wl_proxy_marshal_flags(proxy, destroy, nullptr, wl_proxy_get_version(proxy), WL_MARSHAL_FLAG_DESTROY);
    }
};

/// Ends it here alone: the first version of some objects cannot be ended in the compositor.
struct Forget {
    void operator()(wl_proxy* proxy) const { wl_proxy_destroy(proxy); }
};

template <class End>
using Object = std::unique_ptr<wl_proxy, End>;

/// Sends a request that makes no object.
void request(const auto& object, std::uint32_t number, auto... arguments)
{
    wl_proxy_marshal_flags(
        object.get(), number, nullptr, wl_proxy_get_version(object.get()), 0, arguments...);
}

/// Sends a request that makes an object of this interface. `arguments`: with null in its place.
wl_proxy* make(const auto& object, std::uint32_t number, const wl_interface& interface, auto... arguments)
{
    const std::uint32_t version = wl_proxy_get_version(object.get());
    return wl_proxy_marshal_flags(object.get(), number, &interface, version, 0, arguments...);
}

/// The compositor's global object of this interface, in its first version; null where it has none. Waits for
/// its answer.
wl_proxy* bind(wl_display* display, const wl_interface& interface);

} // namespace skyvane::Wayland
