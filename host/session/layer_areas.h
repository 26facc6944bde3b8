#pragma once

#include <QObject>
#include <QSize>

#include <functional>
#include <map>
#include <memory>

class QScreen;

namespace skyvane {

/// The room that panels leave on each screen of a compositor with layer-shell. It tells nobody where that
/// room is, only how large: the size of a surface that is stretched from edge to edge of it. Such a one is
/// kept for each screen, never painted and so never seen. Needs a QGuiApplication on Wayland.
class LayerAreas {
public:
    LayerAreas();
    ~LayerAreas();
    LayerAreas(const LayerAreas&) = delete;
    LayerAreas& operator=(const LayerAreas&) = delete;

    /// In points; the screen's size as long as the compositor has not answered.
    QSize of(const QScreen& screen) const;

    /// Calls back, from the event loop, when one has changed.
    void onChange(std::function<void()> changed) { m_changed = std::move(changed); }

private:
    struct Compositor;
    class Stretched;

    void add(QScreen& screen);

    std::function<void()> m_changed;
    std::unique_ptr<Compositor> m_compositor;
    std::map<const QScreen*, std::unique_ptr<Stretched>> m_surfaces;
    QObject m_context; ///< Ends the connections to screens.
};

} // namespace skyvane
