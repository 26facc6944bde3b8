#pragma once

#include "desk/display_list_view.h"
#include "host/extension/schedule.h"
#include "paint/widget_card.h"
#include "ui/layout/widget_container.h"

namespace skyvane {

/// What a widget's window asks of its desktop.
struct WidgetActions {
    std::function<void(const URL&)> open; ///< Only ever a URL of the scheme "skyvane".
    std::function<QRect(const QRect& frame)> snapped; ///< Where a dragged frame comes to stand.
    std::function<void()> dropped; ///< At the end of a drag.
    std::function<void(const QPoint& place)> menu; ///< Asked for there, in the coordinates of the screens.
};

/// One widget's window: the card as a part of the desktop, dragged by the pointer.
class WidgetWindow : public DisplayListView {
public:
    WidgetWindow(WidgetFamily family, const FontMeasurer& fonts, WidgetActions actions);

    /// Sets what a screen reader calls the widget.
    void setNames(const QString& name, const QString& description);

    void showContent(const ShownEntry& content);

    /// Cuts the round corners off, for a screen that blends no window with what is below it.
    void setShaped(bool isShaped);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    /// What is kept of the content beside what the card shows.
    struct Shown {
        std::optional<URL> url;
        WidgetCard::Mark mark;
    };

    void open(const URL* link);

    WidgetActions m_actions;
    std::optional<Shown> m_shown; ///< Absent before the first content.
    std::optional<QPoint> m_pressed; ///< In the coordinates of the screens.
    QPoint m_origin; ///< The window's place when it was pressed.
    bool m_isDragging = false;
    bool m_isShaped = false;
};

} // namespace skyvane
