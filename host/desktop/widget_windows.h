#pragma once

#include "host/desktop/widget_window.h"
#include "host/desktop/window_pointer.h"
#include "host/placing/placed_widget.h"
#include "host/session/compositing_watch.h"

#include <map>

namespace skyvane {

/// The windows of the placed widgets, by the widgets' ids, and the room between them.
class WidgetWindows {
public:
    explicit WidgetWindows(const FontMeasurer& fonts) : m_fonts(fonts) { }

    /// Opens the widget's window, in place of the one that it may have.
    void open(const PlacedWidget& widget, WidgetActions actions);
    void close(int widget);
    void clear() { m_windows.clear(); }

    /// Null where the widget has no window.
    WidgetWindow* find(int widget) const;

    /// Moves each window to where it belongs on the screens there are now.
    void restore(const std::vector<PlacedWidget>& widgets);

    /// Where a dragged frame comes to stand beside the windows. `own`: the widget that it is the frame of.
    QRect snapped(const QRect& frame, std::optional<int> own = std::nullopt) const;
    /// Where there is room for one more; at the origin without a screen.
    QRect freeFrame(WidgetFamily family, const std::optional<ScreenArea>& screen) const;

private:
    std::vector<QRect> framesBut(std::optional<int> widget) const;
    void shape();

    const FontMeasurer& m_fonts;
    std::map<int, WindowPointer<WidgetWindow>> m_windows;
    CompositingWatch m_compositing{[this] { shape(); }};
    bool m_isComposited = m_compositing.isActive();
};

} // namespace skyvane
