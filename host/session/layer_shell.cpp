#include "host/session/layer_shell.h"

#include <LayerShellQt/Window>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <cstdint>
#include <memory>
#include <string_view>
#include <wayland-client.h>

namespace skyvane::LayerShell {

namespace {

void noteGlobal(
    void* isFound, wl_registry*, std::uint32_t /*name*/, const char* interface, std::uint32_t /*version*/)
{
    if (std::string_view{interface} == "zwlr_layer_shell_v1")
        *static_cast<bool*>(isFound) = true;
}

void forgetGlobal(void*, wl_registry*, std::uint32_t) { }

QScreen* screenOf(const QRect& frame)
{
    QScreen* screen = QGuiApplication::screenAt(frame.center());
    return screen != nullptr ? screen : QGuiApplication::primaryScreen();
}

} // namespace

bool isOffered()
{
    if (!qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        return false;
    const std::unique_ptr<wl_display, decltype(&wl_display_disconnect)> display{
        wl_display_connect(nullptr), &wl_display_disconnect};
    if (!display)
        return false;
    bool isFound = false;
    const std::unique_ptr<wl_registry, decltype(&wl_registry_destroy)> registry{
        wl_display_get_registry(display.get()), &wl_registry_destroy};
    static constexpr wl_registry_listener listener{.global = noteGlobal, .global_remove = forgetGlobal};
    wl_registry_add_listener(registry.get(), &listener, &isFound);
    wl_display_roundtrip(display.get());
    return isFound;
}

void adopt(QWidget& window)
{
    window.winId(); // Makes the window that the layer is told about.
    LayerShellQt::Window* layer = LayerShellQt::Window::get(window.windowHandle());
    layer->setLayer(LayerShellQt::Window::LayerBottom);
    layer->setAnchors({LayerShellQt::Window::AnchorTop, LayerShellQt::Window::AnchorLeft});
    layer->setKeyboardInteractivity(LayerShellQt::Window::KeyboardInteractivityOnDemand);
    layer->setScope(QStringLiteral("dock")); // KWin tells by it what stays when the desktop is shown.
    layer->setExclusiveZone(-1); // Margins count from the screen's edge, not from a panel's.
    layer->setCloseOnDismissed(false);
}

void move(QWidget& window, const QPoint& place)
{
    QWindow* handle = window.windowHandle();
    QScreen* screen = screenOf({place, window.size()});
    if (handle == nullptr || screen == nullptr)
        return;
    const bool changesScreen = handle->screen() != screen && window.isVisible();
    if (changesScreen)
        window.hide(); // A surface belongs to one screen for as long as it is shown.
    const QPoint inset = place - screen->geometry().topLeft();
    handle->setScreen(screen);
    LayerShellQt::Window::get(handle)->setMargins({inset.x(), inset.y(), 0, 0});
    window.move(place);
    if (changesScreen)
        window.show();
    window.update(); // The new place is told with the next picture.
}

} // namespace skyvane::LayerShell
