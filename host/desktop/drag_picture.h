#pragma once

#include <QPixmap>
#include <QWidget>

namespace skyvane {

class DesktopWay;

/// A window's picture, moved in its place where the window cannot be moved under the pointer. It lies on the
/// desktop as the window does, and the pointer goes through it.
class DragPicture : public QWidget {
public:
    DragPicture(QWidget& window, DesktopWay& way);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_picture;
};

} // namespace skyvane
