#include "host/session/wayland_protocols.h"

#include <array>
#include <string_view>

namespace skyvane::Wayland {

namespace {

using Types = std::array<const wl_interface*, 5>;

/// For messages without objects; xdg_popup, too, which nobody makes here.
Types noObjects{};
Types ofLayerSurface{&layerSurface, &wl_surface_interface, &wl_output_interface, nullptr, nullptr};
Types ofToken{&activationToken};
Types ofActivate{nullptr, &wl_surface_interface};
Types ofSerial{nullptr, &wl_seat_interface};
Types ofSurface{&wl_surface_interface};

wl_message message(const char* name, const char* signature, Types& types = noObjects)
{
    return {.name = name, .signature = signature, .types = types.data()};
}

const std::array shellRequests{message("get_layer_surface", "no?ous", ofLayerSurface)};

const std::array surfaceRequests{
    message("set_size", "uu"),
    message("set_anchor", "u"),
    message("set_exclusive_zone", "i"),
    message("set_margin", "iiii"),
    message("set_keyboard_interactivity", "u"),
    message("get_popup", "o"),
    message("ack_configure", "u"),
    message("destroy", ""),
};
const std::array surfaceEvents{message("configure", "uuu"), message("closed", "")};

const std::array activationRequests{
    message("destroy", ""),
    message("get_activation_token", "n", ofToken),
    message("activate", "so", ofActivate),
};

const std::array tokenRequests{
    message("set_serial", "uo", ofSerial),
    message("set_app_id", "s"),
    message("set_surface", "o", ofSurface),
    message("commit", ""),
    message("destroy", ""),
};
const std::array tokenEvents{message("done", "s")};

struct Search {
    const wl_interface& interface;
    wl_proxy* found = nullptr;
};

void noteGlobal(
    void* data, wl_registry* registry, std::uint32_t name, const char* interface, std::uint32_t /*version*/)
{
    auto& search = *static_cast<Search*>(data);
    if (search.found == nullptr && std::string_view{interface} == search.interface.name)
        search.found = static_cast<wl_proxy*>(wl_registry_bind(registry, name, &search.interface, 1));
}

void forgetGlobal(void*, wl_registry*, std::uint32_t) { }

} // namespace

const wl_interface layerShell{.name = "zwlr_layer_shell_v1",
    .version = 1,
    .method_count = shellRequests.size(),
    .methods = shellRequests.data(),
    .event_count = 0,
    .events = nullptr};
const wl_interface layerSurface{.name = "zwlr_layer_surface_v1",
    .version = 1,
    .method_count = surfaceRequests.size(),
    .methods = surfaceRequests.data(),
    .event_count = surfaceEvents.size(),
    .events = surfaceEvents.data()};
const wl_interface activation{.name = "xdg_activation_v1",
    .version = 1,
    .method_count = activationRequests.size(),
    .methods = activationRequests.data(),
    .event_count = 0,
    .events = nullptr};
const wl_interface activationToken{.name = "xdg_activation_token_v1",
    .version = 1,
    .method_count = tokenRequests.size(),
    .methods = tokenRequests.data(),
    .event_count = tokenEvents.size(),
    .events = tokenEvents.data()};

wl_proxy* bind(wl_display* display, const wl_interface& interface)
{
    Search search{.interface = interface};
    const std::unique_ptr<wl_registry, decltype(&wl_registry_destroy)> registry{
        wl_display_get_registry(display), &wl_registry_destroy};
    static constexpr wl_registry_listener listener{.global = noteGlobal, .global_remove = forgetGlobal};
    wl_registry_add_listener(registry.get(), &listener, &search);
    wl_display_roundtrip(display);
    return search.found;
}

} // namespace skyvane::Wayland
