#include "host/desktop/widget_window.h"

#include "host/desktop/accessible_widget.h"
#include "host/session/desktop_hints.h"
#include "host/session/round_shape.h"
#include "paint/to_qt.h"
#include "paint/widget_card.h"
#include "platform/text/localized.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include <utility>

namespace skyvane {

namespace {

constexpr double linkRadius = 4;

QRectF rectOf(const LinkArea& link)
{
    return {link.frame.x, link.frame.y, link.frame.width, link.frame.height};
}

QString spoken(const std::vector<SpokenPart>& parts)
{
    QStringList texts;
    for (const SpokenPart& part : parts)
        texts += QString::fromStdString(part.text);
    return texts.join(QStringLiteral(", "));
}

} // namespace

WidgetWindow::WidgetWindow(WidgetFamily family, const FontMeasurer& fonts, WidgetActions actions)
    : m_family(family)
    , m_fonts(fonts)
    , m_actions(std::move(actions))
    , m_list{.size = WidgetContainer::size(family)}
{
    makeWidgetsAccessible();
    setFixedSize(WidgetCard::sizeOf(family));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    makePartOfDesktop(*this);
}

void WidgetWindow::setNames(const QString& name, const QString& description)
{
    setAccessibleName(name);
    setWindowTitle(name);
    if (!m_content)
        setAccessibleDescription(description);
}

void WidgetWindow::showContent(const ShownEntry& content)
{
    if (m_content == content)
        return;
    m_content = content;
    m_list = WidgetContainer::layout(content.entry.view, m_family, m_fonts);
    m_parts = spokenParts(m_list);
    if (m_focusedLink >= m_list.links.size())
        m_focusedLink.reset();
    const QString state = content.isStale ? QString::fromStdString(localized("Not up to date.")) : QString{};
    setAccessibleDescription((state + QStringLiteral(" ") + spoken(m_parts)).trimmed());
    setToolTip(state);
    if (AccessibleWidget* accessible = accessibleOf(*this))
        accessible->renew();
    update();
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

void WidgetWindow::paintEvent(QPaintEvent*)
{
    QPainter painter{this};
    const Color background = m_content ? m_content->entry.background : WidgetCard::emptyBackground;
    if (m_isShaped)
        painter.fillRect(rect(), toQt(background));
    WidgetCard::paint(m_list, background, painter, m_fonts);
    if (m_content && m_content->isStale)
        WidgetCard::paintStale(width(), painter);
    if (!hasFocus() || !m_isKeyboardUsed)
        return;
    if (m_focusedLink)
        WidgetCard::paintFocus(rectOf(m_list.links[*m_focusedLink]), linkRadius, painter);
    else
        WidgetCard::paintFocus(rect(), WidgetCard::cornerRadius, painter);
}

void WidgetWindow::mousePressEvent(QMouseEvent* event)
{
    stayOnDesktop(*this);
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = event->globalPosition().toPoint();
    m_origin = pos();
    m_isDragging = false;
}

void WidgetWindow::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint place = event->globalPosition().toPoint();
    if (m_pressed && (place - *m_pressed).manhattanLength() >= QApplication::startDragDistance())
        m_isDragging = true;
    if (m_pressed && m_isDragging)
        moveOnDesktop(*this, m_actions.snapped({m_origin + place - *m_pressed, size()}).topLeft());
    setCursor(linkAt(event->position()) != nullptr ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void WidgetWindow::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !std::exchange(m_pressed, std::nullopt))
        return;
    if (std::exchange(m_isDragging, false))
        m_actions.dropped();
    else
        open(linkAt(event->position()));
}

void WidgetWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        press(m_focusedLink);
    else
        QWidget::keyPressEvent(event);
}

void WidgetWindow::contextMenuEvent(QContextMenuEvent* event)
{
    m_actions.menu(event->globalPos());
}

/// Goes round: the whole widget, then each of its links.
bool WidgetWindow::focusNextPrevChild(bool isNext)
{
    const std::size_t stops = m_list.links.size() + 1;
    const std::size_t stop = m_focusedLink ? *m_focusedLink + 1 : 0;
    const std::size_t next = (stop + (isNext ? 1 : stops - 1)) % stops;
    m_focusedLink = next == 0 ? std::nullopt : std::optional{next - 1};
    m_isKeyboardUsed = true;
    if (AccessibleWidget* accessible = accessibleOf(*this))
        accessible->tellFocus();
    update();
    return true;
}

void WidgetWindow::focusOutEvent(QFocusEvent* event)
{
    m_focusedLink.reset();
    m_isKeyboardUsed = false;
    QWidget::focusOutEvent(event);
    update();
}

const LinkArea* WidgetWindow::linkAt(QPointF place) const
{
    const LinkArea* found = nullptr;
    for (const LinkArea& link : m_list.links) {
        if (rectOf(link).contains(place))
            found = &link;
    }
    return found;
}

void WidgetWindow::press(std::optional<std::size_t> link)
{
    open(link && *link < m_list.links.size() ? &m_list.links[*link] : nullptr);
}

void WidgetWindow::open(const LinkArea* link)
{
    const std::optional<URL> url = link != nullptr ? std::optional{link->url}
        : m_content                                ? m_content->entry.url
                                                   : std::nullopt;
    if (url && url->scheme() == "skyvane")
        m_actions.open(*url);
}

} // namespace skyvane
