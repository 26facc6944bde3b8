#include "host/desktop/widget_window.h"

#include "desk/text.h"
#include "host/session/desktop_hints.h"
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

using WidgetCard::Mark;

Mark markOf(const ShownEntry& content)
{
    return content.isRefreshing ? Mark::refreshing : content.isStale ? Mark::stale : Mark::none;
}

/// For a screen reader and the tool tip.
QString stateOf(Mark mark)
{
    switch (mark) {
    case Mark::none:
        return {};
    case Mark::stale:
        return localizedText("Not up to date.");
    case Mark::refreshing:
        break;
    }
    return localizedText("Refreshing.");
}

} // namespace

WidgetWindow::WidgetWindow(WidgetFamily family, const FontMeasurer& fonts, WidgetActions actions)
    : DisplayListView(fonts, [this](const URL* link) { open(link); }), m_actions(std::move(actions))
{
    setFixedSize(WidgetCard::sizeOf(family));
    showEmptyCard();
    makePartOfDesktop(*this);
}

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
    const QString state = stateOf(m_shown->mark);
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
    if (m_isShaped && background())
        QPainter{this}.fillRect(rect(), toQt(*background()));
    DisplayListView::paintEvent(event);
    if (m_shown) {
        QPainter painter{this};
        WidgetCard::paintMark(m_shown->mark, width(), painter);
    }
}

void WidgetWindow::mousePressEvent(QMouseEvent* event)
{
    stayOnDesktop(*this);
    DisplayListView::mousePressEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = event->globalPosition().toPoint();
    m_origin = pos();
    m_isDragging = false;
}

void WidgetWindow::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint place = event->globalPosition().toPoint();
    if (m_pressed && (place - *m_pressed).manhattanLength() >= QApplication::startDragDistance()) {
        m_isDragging = true;
        dropTap();
    }
    if (m_pressed && m_isDragging)
        moveOnDesktop(*this, m_actions.snapped({m_origin + place - *m_pressed, size()}).topLeft());
    DisplayListView::mouseMoveEvent(event);
}

void WidgetWindow::mouseReleaseEvent(QMouseEvent* event)
{
    DisplayListView::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed.reset();
    if (std::exchange(m_isDragging, false))
        m_actions.dropped();
}

void WidgetWindow::contextMenuEvent(QContextMenuEvent* event)
{
    m_actions.menu(event->globalPos());
}

void WidgetWindow::open(const URL* link)
{
    const std::optional<URL> url = link != nullptr ? std::optional{*link}
        : m_shown                                  ? m_shown->url
                                                   : std::nullopt;
    if (url && url->scheme() == "skyvane")
        m_actions.open(*url);
}

} // namespace skyvane
