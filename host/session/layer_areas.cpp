#include "host/session/layer_areas.h"

#include "host/session/wayland_protocols.h"

#include <QGuiApplication>
#include <QScreen>

#include <utility>

namespace skyvane {

namespace {

using Native = QNativeInterface::QWaylandApplication;

/// Of the protocol.
constexpr std::uint32_t bottomLayer = 1;
constexpr std::uint32_t allEdges = 1 | 2 | 4 | 8;

} // namespace

struct LayerAreas::Compositor {
    wl_display* display;
    wl_compositor* surfaces;
    Wayland::Object<Wayland::Forget> layerShell;
};

/// The surface of one screen. It asks for no room of its own, and so is given what panels leave.
class LayerAreas::Stretched {
public:
    Stretched(const Compositor& compositor, wl_output* output, std::function<void()> changed)
        : m_changed(std::move(changed))
        , m_surface(wl_compositor_create_surface(compositor.surfaces), &wl_surface_destroy)
        , m_layer(Wayland::make(compositor.layerShell, Wayland::Request::getLayerSurface,
              Wayland::layerSurface, nullptr, m_surface.get(), output, bottomLayer, "skyvane-area"))
    {
        static constexpr Listener listener{.configure = configure, .closed = [](void*, wl_proxy*) {}};
        wl_proxy_add_listener(
            m_layer.get(), reinterpret_cast<void (**)()>(const_cast<Listener*>(&listener)), this);
        Wayland::request(m_layer, Wayland::Request::setAnchor, allEdges);
        wl_surface_commit(m_surface.get());
    }

    QSize size() const { return m_size; }

private:
    /// In the order of the protocol's events.
    struct Listener {
        void (*configure)(void*, wl_proxy*, std::uint32_t serial, std::uint32_t width, std::uint32_t height);
        void (*closed)(void*, wl_proxy*);
    };

    static void configure(
        void* data, wl_proxy*, std::uint32_t serial, std::uint32_t width, std::uint32_t height)
    {
        auto& self = *static_cast<Stretched*>(data);
        Wayland::request(self.m_layer, Wayland::Request::ackConfigure, serial);
        const QSize size{static_cast<int>(width), static_cast<int>(height)};
        if (std::exchange(self.m_size, size) != size)
            self.m_changed();
    }

    std::function<void()> m_changed;
    std::unique_ptr<wl_surface, decltype(&wl_surface_destroy)> m_surface;
    Wayland::Object<Wayland::End<Wayland::Request::destroyLayerSurface>> m_layer;
    QSize m_size; ///< Empty before the compositor has answered.
};

LayerAreas::LayerAreas()
{
    const auto* native = qGuiApp->nativeInterface<Native>();
    m_compositor = std::make_unique<Compositor>(Compositor{
        .display = native->display(),
        .surfaces = native->compositor(),
        .layerShell = Wayland::Object<Wayland::Forget>{Wayland::bind(native->display(), Wayland::layerShell)},
    });
    if (!m_compositor->layerShell)
        return;
    for (QScreen* screen : QGuiApplication::screens())
        add(*screen);
    wl_display_roundtrip(m_compositor->display);
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &m_context, [this](QScreen* s) { add(*s); });
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, &m_context,
        [this](QScreen* screen) { m_surfaces.erase(screen); });
}

LayerAreas::~LayerAreas() = default;

void LayerAreas::add(QScreen& screen)
{
    const auto* native = screen.nativeInterface<QNativeInterface::QWaylandScreen>();
    if (native == nullptr || native->output() == nullptr)
        return; // Stands in for a screen while there is none.
    const auto tell = [this] {
        if (m_changed)
            m_changed();
    };
    m_surfaces[&screen] = std::make_unique<Stretched>(*m_compositor, native->output(),
        [this, tell] { QMetaObject::invokeMethod(&m_context, tell, Qt::QueuedConnection); });
}

QSize LayerAreas::of(const QScreen& screen) const
{
    const QSize whole = screen.geometry().size();
    const auto found = m_surfaces.find(&screen);
    const QSize size = found != m_surfaces.end() ? found->second->size() : QSize{};
    return size.isEmpty() ? whole : size.boundedTo(whole);
}

} // namespace skyvane
