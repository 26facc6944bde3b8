#pragma once

#include "desk/spoken_parts.h"
#include "host/extension/schedule.h"
#include "paint/font_measurer.h"
#include "ui/layout/display_list.h"

#include <QWidget>

namespace skyvane {

/// What a widget's window asks of its desktop.
struct WidgetActions {
    std::function<void(const URL&)> open; ///< Only ever a URL of the scheme "skyvane".
    std::function<QRect(const QRect& frame)> snapped; ///< Where a dragged frame comes to stand.
    std::function<void()> dropped; ///< At the end of a drag.
    std::function<void(const QPoint& place)> menu; ///< Asked for there, in the coordinates of the screens.
};

/// One widget's window.
class WidgetWindow : public QWidget {
public:
    WidgetWindow(WidgetFamily family, const FontMeasurer& fonts, WidgetActions actions);

    /// For a screen reader.
    void setNames(const QString& name, const QString& description);

    void showContent(const ShownEntry& content);

    /// Where nothing blends its round corners with what is below, they are cut off.
    void setShaped(bool isShaped);

    /// What it shows, in words.
    const std::vector<SpokenPart>& parts() const { return m_parts; }
    std::optional<std::size_t> focusedLink() const { return m_focusedLink; }
    /// As a tap on that link does, or on the widget beside all links.
    void press(std::optional<std::size_t> link);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool focusNextPrevChild(bool isNext) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    const LinkArea* linkAt(QPointF place) const;
    void open(const LinkArea* link);

    WidgetFamily m_family;
    const FontMeasurer& m_fonts;
    WidgetActions m_actions;
    std::optional<ShownEntry> m_content;
    DisplayList m_list;
    std::vector<SpokenPart> m_parts;
    std::optional<std::size_t> m_focusedLink;
    std::optional<QPoint> m_pressed; ///< In the coordinates of the screens.
    QPoint m_origin; ///< The window's place when it was pressed.
    bool m_isDragging = false;
    bool m_isKeyboardUsed = false; ///< So that the focus is worth showing.
    bool m_isShaped = false;
};

} // namespace skyvane
