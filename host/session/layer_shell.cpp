#include "host/session/layer_shell.h"

#include "host/session/desktop_way.h"
#include "host/session/layer_activation.h"
#include "host/session/layer_areas.h"
#include "host/session/wayland_protocols.h"

#include <LayerShellQt/Window>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <map>
#include <memory>
#include <utility>

namespace skyvane {

namespace {

using Layer = LayerShellQt::Window;

QScreen* screenOf(const QRect& frame)
{
    QScreen* screen = QGuiApplication::screenAt(frame.center());
    return screen != nullptr ? screen : QGuiApplication::primaryScreen();
}

/// Widgets as surfaces of the layer between the wallpaper and all ordinary windows.
class LayerWay : public DesktopWay {
public:
    void adopt(QWidget& window) override;
    void move(QWidget& window, const QPoint& place) override;
    void giveKeyboard(QWidget& window) override;
    QString activationToken(QWidget&, std::uint32_t) override { return LayerActivation::newToken(); }
    QRect area(const QScreen& screen) const override;
    void onAreaChange(std::function<void()> changed) override { m_areas.onChange(std::move(changed)); }

    /// Events of the pointer count from the surface that holds it, and compositors disagree from where when
    /// it moves meanwhile: KWin and labwc from its new place, sway from that of the press.
    bool movesUnderPointer() const override { return false; }

    bool arePlacesKnown() const override { return false; }

private:
    /// The screen that each window's surface was made for.
    std::map<const QWidget*, QPointer<QScreen>> m_screens;
    LayerAreas m_areas;
    QObject m_context;
};

void LayerWay::adopt(QWidget& window)
{
    DesktopWay::adopt(window);
    window.winId(); // Makes the window that the layer is told about.
    Layer* layer = Layer::get(window.windowHandle());
    layer->setLayer(Layer::LayerBottom);
    layer->setAnchors({Layer::AnchorTop, Layer::AnchorLeft});
    layer->setKeyboardInteractivity(Layer::KeyboardInteractivityNone);
    layer->setScope(QStringLiteral("dock")); // KWin tells by it what stays when the desktop is shown.
    layer->setExclusiveZone(0); // Margins count from the room that panels leave.
    layer->setCloseOnDismissed(false); // Of a screen that goes; it is shown elsewhere.
    QObject::connect(
        &window, &QObject::destroyed, &m_context, [this, key = &window] { m_screens.erase(key); });
}

/// A surface belongs to one screen for as long as it is shown, and is gone with it, whichever screen the
/// toolkit says the window is on by then.
void LayerWay::move(QWidget& window, const QPoint& place)
{
    QWindow* handle = window.windowHandle();
    QScreen* screen = screenOf({place, window.size()});
    if (handle == nullptr || screen == nullptr)
        return;
    const QPointer<QScreen> before = std::exchange(m_screens[&window], screen);
    const bool changesScreen = before != screen && window.isVisible();
    if (changesScreen)
        window.hide();
    const QPoint inset = place - screen->geometry().topLeft();
    handle->setScreen(screen);
    Layer::get(handle)->setMargins({inset.x(), inset.y(), 0, 0});
    window.move(place);
    if (changesScreen)
        window.show();
    window.update(); // The new place is told with the next picture.
}

/// Places count from the room that panels leave, wherever that is on the screen.
QRect LayerWay::area(const QScreen& screen) const
{
    return {screen.geometry().topLeft(), m_areas.of(screen)};
}

/// On the bottom layer compositors may refuse it. The widget comes up for as long as it has the keyboard.
void LayerWay::giveKeyboard(QWidget& window)
{
    Layer* layer = Layer::get(window.windowHandle());
    layer->setLayer(Layer::LayerTop);
    layer->setKeyboardInteractivity(Layer::KeyboardInteractivityExclusive);
    window.setFocus(Qt::TabFocusReason);
    window.update();
    QObject::disconnect(window.windowHandle(), &QWindow::activeChanged, layer, nullptr);
    QObject::connect(window.windowHandle(), &QWindow::activeChanged, layer, [&window, layer] {
        const bool isActive = window.windowHandle()->isActive();
        layer->setKeyboardInteractivity(
            isActive ? Layer::KeyboardInteractivityOnDemand : Layer::KeyboardInteractivityNone);
        if (!isActive) {
            layer->setLayer(Layer::LayerBottom);
            QObject::disconnect(window.windowHandle(), &QWindow::activeChanged, layer, nullptr);
        }
        window.update();
    });
}

} // namespace

bool LayerShell::isBuiltIn()
{
    return true;
}

bool LayerShell::isOffered()
{
    if (!qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        return false;
    const std::unique_ptr<wl_display, decltype(&wl_display_disconnect)> display{
        wl_display_connect(nullptr), &wl_display_disconnect};
    if (!display)
        return false;
    const Wayland::Object<Wayland::Forget> shell{Wayland::bind(display.get(), Wayland::layerShell)};
    return shell != nullptr;
}

std::unique_ptr<DesktopWay> LayerShell::way()
{
    return isOffered() ? std::make_unique<LayerWay>() : nullptr;
}

} // namespace skyvane
