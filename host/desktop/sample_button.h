#pragma once

#include "desk/display_list_view.h"
#include "protocol/widget_timeline.h"
#include "ui/layout/widget_container.h"

#include <QAbstractButton>

#include <functional>
#include <memory>

namespace skyvane {

class DesktopWay;

/// A widget of a family as a button with its sample's picture, which can be dragged out of the window.
class SampleButton : public QAbstractButton {
public:
    /// Told the picture's frame at the end of a drag, in the coordinates of the screens.
    using Dropped = std::function<void(const QRect& frame)>;

    SampleButton(WidgetFamily family, const FontMeasurer& fonts, const DesktopWay& way, Dropped dropped);

    void showSample(const WidgetEntry& entry);

protected:
    void paintEvent(QPaintEvent*) override { } ///< The picture is all there is to see.
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    const DesktopWay& m_way;
    Dropped m_dropped;
    DisplayListView* m_picture;
    QPoint m_pressed;
    std::unique_ptr<QWidget> m_dragged; ///< The picture under the pointer.
};

} // namespace skyvane
