#include "companion/look/line_icon.h"

#include "companion/look/star_shape.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace skyvane {

namespace {

/// In a square of 16 by 16.
QPainterPath outline(LineIcon shape)
{
    QPainterPath path;
    switch (shape) {
    case LineIcon::back:
        path.moveTo(10, 3.5);
        path.lineTo(5.5, 8);
        path.lineTo(10, 12.5);
        break;
    case LineIcon::refresh:
        path.arcMoveTo(3, 3, 10, 10, 40);
        path.arcTo(3, 3, 10, 10, 40, 290);
        path.moveTo(12.6, 1.8);
        path.lineTo(12.4, 5.2);
        path.lineTo(9, 4.9);
        break;
    case LineIcon::menu:
        for (const double y : {4.5, 8.0, 11.5}) {
            path.moveTo(3, y);
            path.lineTo(13, y);
        }
        break;
    case LineIcon::search:
        path.addEllipse(2.8, 2.8, 7.4, 7.4);
        path.moveTo(9.2, 9.2);
        path.lineTo(13.2, 13.2);
        break;
    case LineIcon::star:
    case LineIcon::starOn:
        path = starShape();
        break;
    }
    return path;
}

class LineIconEngine : public QIconEngine {
public:
    explicit LineIconEngine(LineIcon shape) : m_shape(shape) { }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const double side = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF{rect}.center() - QPointF{side / 2, side / 2});
        painter->scale(side / 16, side / 16);
        if (m_shape == LineIcon::back && QGuiApplication::isRightToLeft()) {
            painter->translate(16, 0);
            painter->scale(-1, 1);
        }
        const QColor color = QGuiApplication::palette().color(group, QPalette::WindowText);
        painter->setPen(QPen{color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
        if (m_shape == LineIcon::starOn)
            painter->setBrush(color);
        painter->drawPath(outline(m_shape));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap{size};
        pixmap.fill(Qt::transparent);
        QPainter painter{&pixmap};
        paint(&painter, {{}, size}, mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new LineIconEngine{m_shape}; }

private:
    LineIcon m_shape;
};

} // namespace

QIcon lineIcon(LineIcon shape)
{
    return QIcon{new LineIconEngine{shape}};
}

} // namespace skyvane
