#include "host/desktop/widget_window.h"

#include "host/desktop/drag_picture.h"
#include "host/desktop/shown_state.h"
#include "host/session/desktop_way.h"
#include "host/session/round_shape.h"
#include "paint/to_qt.h"
#include "paint/widget_card.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include <utility>

namespace skyvane {

namespace {

std::uint32_t timeOf(const QInputEvent& event)
{
    return static_cast<std::uint32_t>(event.timestamp());
}

} // namespace

WidgetWindow::WidgetWindow(
    WidgetFamily family, const FontMeasurer& fonts, DesktopWay& way, WidgetActions actions)
    : DisplayListView(fonts, [this](const URL* link) { open(link); })
    , m_way(way)
    , m_actions(std::move(actions))
{
    setFixedSize(WidgetCard::sizeOf(family));
    showEmptyCard();
    m_way.adopt(*this);
}

WidgetWindow::~WidgetWindow() = default;

void WidgetWindow::setNames(const QString& name, const QString& description)
{
    setAccessibleName(name);
    setWindowTitle(name);
    if (!m_shown)
        setAccessibleDescription(description);
}

void WidgetWindow::showContent(const ShownEntry& content)
{
    m_shown = Shown{.url = content.entry.url, .mark = markOf(content)};
    const QString state = stateOf(content);
    showCard(content.entry.view, content.entry.background, state);
    setToolTip(state);
}

/// Not by the widget's own mask: all that is painted would be cut along it, which takes several times as
/// long.
void WidgetWindow::setShaped(bool isShaped)
{
    if (std::exchange(m_isShaped, isShaped) == isShaped)
        return;
    winId(); // From here on there is a handle.
    windowHandle()->setMask(isShaped ? roundShape(size()) : QRegion{});
    update();
}

void WidgetWindow::paintEvent(QPaintEvent* event)
{
    if (m_picture)
        return; // It is seen elsewhere.
    if (m_isShaped && background())
        QPainter{this}.fillRect(rect(), toQt(*background()));
    DisplayListView::paintEvent(event);
    if (m_shown) {
        QPainter painter{this};
        WidgetCard::paintMark(m_shown->mark, width(), painter, fromQt(layoutDirection()));
    }
}

void WidgetWindow::mousePressEvent(QMouseEvent* event)
{
    m_way.keepBelow(*this);
    DisplayListView::mousePressEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    m_hold = Hold{.origin = pos(), .inWindow = event->position(), .onScreens = event->globalPosition()};
    m_dragged.reset();
}

void WidgetWindow::mouseMoveEvent(QMouseEvent* event)
{
    if (m_hold && m_isMovable) {
        const QPoint place = heldPlace(*event);
        if (m_dragged || (place - m_hold->origin).manhattanLength() >= QApplication::startDragDistance())
            drag(place);
    }
    DisplayListView::mouseMoveEvent(event);
}

/// Where the window belongs for the pointer to be where it was pressed. A window that stays is what the
/// pointer counts from; of one that moves only the screens are sure.
QPoint WidgetWindow::heldPlace(const QMouseEvent& event) const
{
    const QPointF moved = m_way.movesUnderPointer() ? event.globalPosition() - m_hold->onScreens
                                                    : event.position() - m_hold->inWindow;
    return m_hold->origin + moved.toPoint();
}

void WidgetWindow::drag(const QPoint& place)
{
    if (!m_dragged) {
        dropTap();
        if (!m_way.movesUnderPointer())
            m_picture = std::make_unique<DragPicture>(*this, m_way);
        update();
    }
    m_dragged = m_actions.snapped({place, size()}).topLeft();
    m_way.move(m_picture ? static_cast<QWidget&>(*m_picture) : *this, *m_dragged);
}

void WidgetWindow::drop()
{
    const std::unique_ptr<DragPicture> picture = std::move(m_picture); // Until this is painted there.
    if (picture) {
        m_way.move(*this, *m_dragged);
        repaint();
    }
    m_dragged.reset();
    m_actions.dropped();
}

void WidgetWindow::mouseReleaseEvent(QMouseEvent* event)
{
    m_time = timeOf(*event);
    DisplayListView::mouseReleaseEvent(event);
    m_time = 0;
    if (event->button() != Qt::LeftButton)
        return;
    m_hold.reset();
    if (m_dragged)
        drop();
}

void WidgetWindow::keyPressEvent(QKeyEvent* event)
{
    m_time = timeOf(*event);
    DisplayListView::keyPressEvent(event);
    m_time = 0;
}

void WidgetWindow::contextMenuEvent(QContextMenuEvent* event)
{
    m_actions.menu(event->pos(), timeOf(*event));
}

bool WidgetWindow::passKeyboard(bool isNext)
{
    return m_actions.passKeyboard && m_actions.passKeyboard(isNext);
}

void WidgetWindow::open(const URL* link)
{
    const std::optional<URL> url = link != nullptr ? std::optional{*link}
        : m_shown                                  ? m_shown->url
                                                   : std::nullopt;
    if (url && url->scheme() == "skyvane")
        m_actions.open(*url, m_way.activationToken(*this, m_time));
}

} // namespace skyvane
