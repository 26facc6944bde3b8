#pragma once

#include "host/desktop/widget_window.h"
#include "host/desktop/window_pointer.h"
#include "host/placing/placed_widget.h"
#include "host/session/compositing_watch.h"

#include <map>

namespace skyvane {

class DesktopWay;

/// The windows of the placed widgets, by the widgets' ids, and the room between them.
class WidgetWindows {
public:
    WidgetWindows(const FontMeasurer& fonts, std::unique_ptr<DesktopWay> way);
    ~WidgetWindows();

    DesktopWay& way() const { return *m_way; }
    /// As they were when `restore` was last called: a drag does not ask the desktop at every step.
    const std::vector<ScreenArea>& screens() const { return m_screens; }
    /// Absent without any screen.
    std::optional<ScreenArea> primaryScreen() const;
    /// That of the window that the user has to do with, or of the pointer where it is null; the primary one
    /// where the desktop tells neither.
    std::optional<ScreenArea> screenInUse(const QWidget* window) const;

    /// Goes another way, once all windows are closed.
    void follow(std::unique_ptr<DesktopWay> way);

    /// Opens the widget's window, in place of the one that it may have.
    void open(const PlacedWidget& widget, WidgetActions actions);
    void close(int widget);
    void clear() { m_windows.clear(); }

    /// Null where the widget has no window.
    WidgetWindow* find(int widget) const;

    /// Whether windows can be dragged; it holds for those opened later, too.
    void setMovable(bool areMovable);

    bool isComposited() const { return m_isComposited; }

    /// Moves each window to where it belongs on the screens there are now. To be called whenever they change.
    void restore(const std::vector<PlacedWidget>& widgets);

    /// Gives the keyboard to the first widget, or to the one after (before) this one; whether there is one.
    bool giveKeyboard(std::optional<int> from = std::nullopt, bool isNext = true);

    /// The place in the window, nearest to the one where the pointer is, at which a menu lies wholly on the
    /// screen. The toolkit knows neither on a layer of a compositor.
    QPoint menuPlace(const WidgetWindow& window, const QPoint& place, QSize menu) const;

    /// Where a dragged frame comes to stand beside the windows. `own`: the widget that it is the frame of.
    QRect snapped(const QRect& frame, std::optional<int> own = std::nullopt) const;
    /// Where there is room for one more; at the origin without a screen.
    QRect freeFrame(WidgetFamily family, const std::optional<ScreenArea>& screen) const;

private:
    std::vector<QRect> framesBut(std::optional<int> widget) const;
    void shape();

    const FontMeasurer& m_fonts;
    std::unique_ptr<DesktopWay> m_way;
    std::map<int, WindowPointer<WidgetWindow>> m_windows;
    CompositingWatch m_compositing{[this] { shape(); }};
    std::vector<ScreenArea> m_screens;
    bool m_areMovable = true;
    bool m_isComposited = m_compositing.isActive();
};

} // namespace skyvane
