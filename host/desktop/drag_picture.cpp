#include "host/desktop/drag_picture.h"

#include "host/session/desktop_way.h"

#include <QPainter>

namespace skyvane {

DragPicture::DragPicture(QWidget& window, DesktopWay& way)
    : m_picture(window.size() * window.devicePixelRatioF())
{
    m_picture.setDevicePixelRatio(window.devicePixelRatioF());
    m_picture.fill(Qt::transparent);
    window.render(&m_picture, {}, {}, QWidget::DrawChildren);
    setFixedSize(window.size());
    setWindowFlag(Qt::WindowTransparentForInput);
    way.adopt(*this);
    way.move(*this, window.pos());
    way.show(*this);
}

void DragPicture::paintEvent(QPaintEvent*)
{
    QPainter{this}.drawPixmap(0, 0, m_picture);
}

} // namespace skyvane
