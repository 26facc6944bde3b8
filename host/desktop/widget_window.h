#pragma once

#include "desk/display_list_view.h"
#include "host/extension/schedule.h"
#include "paint/widget_card.h"
#include "ui/layout/widget_container.h"

#include <memory>

namespace skyvane {

class DesktopWay;
class DragPicture;

/// What a widget's window asks of its desktop.
struct WidgetActions {
    /// Only ever a URL of the scheme "skyvane".
    std::function<void(const URL&, const QString& activationToken)> open;
    std::function<QRect(const QRect& frame)> snapped; ///< Where a dragged frame comes to stand.
    std::function<void()> dropped; ///< At the end of a drag.
    /// Asked for there, in the window, at that time by the clock of the display's events.
    std::function<void(const QPoint& place, std::uint32_t time)> menu;
    /// Gives the keyboard to the widget after this one, or before it; whether there is another.
    std::function<bool(bool isNext)> passKeyboard{};
};

/// One widget's window: the card as a part of the desktop, dragged by the pointer.
class WidgetWindow : public DisplayListView {
public:
    WidgetWindow(WidgetFamily family, const FontMeasurer& fonts, DesktopWay& way, WidgetActions actions);
    ~WidgetWindow() override;
    WidgetWindow(const WidgetWindow&) = delete;
    WidgetWindow& operator=(const WidgetWindow&) = delete;

    /// Sets what a screen reader calls the widget.
    void setNames(const QString& name, const QString& description);

    void showContent(const ShownEntry& content);

    /// Whether it can be dragged.
    void setMovable(bool isMovable) { m_isMovable = isMovable; }

    /// Cuts the round corners off, for a screen that blends no window with what is below it.
    void setShaped(bool isShaped);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool passKeyboard(bool isNext) override;

private:
    /// What is kept of the content beside what the card shows.
    struct Shown {
        std::optional<URL> url;
        WidgetCard::Mark mark;
    };

    void open(const URL* link);

    DesktopWay& m_way;
    WidgetActions m_actions;
    std::optional<Shown> m_shown; ///< Absent before the first content.
    /// Where the window stood as it was pressed, and where in it the pointer is held.
    struct Hold {
        QPoint origin;
        QPointF inWindow;
        QPointF onScreens;
    };

    QPoint heldPlace(const QMouseEvent& event) const;
    void drag(const QPoint& place);
    void drop();

    std::optional<Hold> m_hold; ///< Absent while the pointer is not pressed.
    std::optional<QPoint> m_dragged; ///< Where a drag has come to; absent when there is none.
    std::unique_ptr<DragPicture> m_picture; ///< Of a window that stays while it is dragged.
    std::uint32_t m_time = 0; ///< Of the input event that is being handled; 0 for none.
    bool m_isShaped = false;
    bool m_isMovable = true;
};

} // namespace skyvane
