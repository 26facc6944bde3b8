#include "host/desktop/sample_button.h"

#include "host/session/desktop_way.h"
#include "host/session/round_shape.h"
#include "paint/widget_card.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>

#include <utility>

namespace skyvane {

namespace {

std::unique_ptr<QWidget> pictureOf(QWidget& widget)
{
    constexpr double opacity = 0.8;
    auto picture = std::make_unique<QLabel>();
    picture->setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput);
    picture->setAttribute(Qt::WA_TranslucentBackground);
    picture->setAttribute(Qt::WA_ShowWithoutActivating);
    picture->setWindowOpacity(opacity);
    QPixmap pixmap{widget.size() * widget.devicePixelRatio()};
    pixmap.setDevicePixelRatio(widget.devicePixelRatio());
    pixmap.fill(Qt::transparent);
    widget.render(&pixmap, {}, {}, QWidget::DrawChildren);
    picture->setPixmap(pixmap);
    picture->resize(widget.size());
    picture->setMask(roundShape(widget.size()));
    return picture;
}

} // namespace

SampleButton::SampleButton(
    WidgetFamily family, const FontMeasurer& fonts, const DesktopWay& way, Dropped dropped)
    : m_way(way), m_dropped(std::move(dropped)), m_picture(new DisplayListView{fonts})
{
    setFixedSize(WidgetCard::sizeOf(family));
    setCursor(Qt::PointingHandCursor);
    m_picture->setParent(this);
    m_picture->resize(size());
    m_picture->showEmptyCard();
}

void SampleButton::showSample(const WidgetEntry& entry)
{
    m_picture->showCard(entry.view, entry.background);
}

void SampleButton::focusInEvent(QFocusEvent* event)
{
    m_picture->setFocusShown(/*isShown=*/true);
    QAbstractButton::focusInEvent(event);
}

void SampleButton::focusOutEvent(QFocusEvent* event)
{
    m_picture->setFocusShown(/*isShown=*/false);
    QAbstractButton::focusOutEvent(event);
}

void SampleButton::mousePressEvent(QMouseEvent* event)
{
    m_pressed = event->position().toPoint();
    QAbstractButton::mousePressEvent(event);
}

void SampleButton::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint place = event->position().toPoint();
    const bool isFar = (place - m_pressed).manhattanLength() >= QApplication::startDragDistance();
    if (!m_dragged && isFar && (event->buttons() & Qt::LeftButton) && m_way.arePlacesKnown())
        m_dragged = pictureOf(*this);
    if (!m_dragged)
        return QAbstractButton::mouseMoveEvent(event);
    m_dragged->move(event->globalPosition().toPoint() - m_pressed);
    m_dragged->show();
}

void SampleButton::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_dragged || event->button() != Qt::LeftButton)
        return QAbstractButton::mouseReleaseEvent(event);
    const QPoint place = event->globalPosition().toPoint();
    m_dragged.reset();
    setDown(false);
    if (!window()->frameGeometry().contains(place))
        m_dropped({place - m_pressed, size()});
}

} // namespace skyvane
