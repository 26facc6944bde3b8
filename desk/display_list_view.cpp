#include "desk/display_list_view.h"

#include "desk/accessible_view.h"
#include "paint/painter.h"
#include "paint/to_qt.h"
#include "paint/widget_card.h"
#include "ui/layout/widget_container.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace skyvane {

namespace {

constexpr double linkRadius = 4;

QRectF rectOf(const LinkArea& link)
{
    return {link.frame.x, link.frame.y, link.frame.width, link.frame.height};
}

} // namespace

DisplayListView::DisplayListView(const FontMeasurer& fonts, Pressed pressed)
    : m_fonts(fonts), m_pressed(std::move(pressed))
{
    makeViewsAccessible();
    setMouseTracking(isPressable());
    setAttribute(Qt::WA_TransparentForMouseEvents, !isPressable());
    setFocusPolicy(isPressable() ? Qt::StrongFocus : Qt::NoFocus);
}

void DisplayListView::showEmptyCard()
{
    m_view.reset();
    m_state.clear();
    m_background = WidgetCard::emptyBackground;
    layOut();
}

void DisplayListView::showCard(View view, const Color& background, const QString& state)
{
    const bool isSameState = std::exchange(m_state, state) == state;
    if (m_view == view && m_background == background)
        return isSameState ? void() : describe();
    m_view = std::move(view);
    m_background = background;
    layOut();
}

void DisplayListView::layOut()
{
    const Size space{.width = 1.0 * width(), .height = 1.0 * height()};
    const TextDirection direction = fromQt(layoutDirection());
    m_list
        = m_view ? WidgetContainer::layout(*m_view, space, m_fonts, direction) : DisplayList{.size = space};
    if (!isPressable())
        m_list.links.clear();
    m_parts = spokenParts(m_list, direction);
    if (m_focusedLink >= m_list.links.size())
        m_focusedLink.reset();
    laidOut();
    describe();
    if (AccessibleView* accessible = accessibleOf(*this))
        accessible->renew();
}

void DisplayListView::describe()
{
    QStringList texts;
    for (const SpokenPart& part : m_parts)
        texts += toQString(part.text);
    setAccessibleDescription((m_state + QLatin1Char{' '} + texts.join(QStringLiteral(", "))).trimmed());
    update();
}

void DisplayListView::setFocusShown(bool isShown)
{
    m_isFocusShown = isShown;
    update();
}

void DisplayListView::press(std::optional<std::size_t> link)
{
    if (isPressable())
        m_pressed(link && *link < m_list.links.size() ? &m_list.links[*link].url : nullptr);
}

void DisplayListView::paintEvent(QPaintEvent*)
{
    if (!m_background)
        return;
    QPainter painter{this};
    paintCard(painter);
    paintFocus(painter);
}

void DisplayListView::paintCard(QPainter& painter)
{
    WidgetCard::paintBackground(m_list.size, *m_background, painter);
    paintUnder(painter, m_list);
    skyvane::paint(m_list, painter, m_fonts);
}

void DisplayListView::paintFocus(QPainter& painter) const
{
    if (!m_isFocusShown)
        return;
    if (m_focusedLink)
        WidgetCard::paintFocus(rectOf(m_list.links[*m_focusedLink]), linkRadius, painter);
    else
        WidgetCard::paintFocus(rect(), WidgetCard::cornerRadius, painter);
}

void DisplayListView::paintUnder(QPainter&, const DisplayList&) { }

void DisplayListView::resizeEvent(QResizeEvent*)
{
    if (m_list.size != Size{.width = 1.0 * width(), .height = 1.0 * height()})
        layOut();
}

void DisplayListView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
}

void DisplayListView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_tap = targetAt(event->position());
}

void DisplayListView::mouseMoveEvent(QMouseEvent* event)
{
    setCursor(linkAt(event->position()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void DisplayListView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const std::optional<Target> target = std::exchange(m_tap, std::nullopt);
    if (target && targetAt(event->position()) == target)
        m_pressed(target->link ? &*target->link : nullptr);
}

void DisplayListView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        press(m_focusedLink);
    else
        QWidget::keyPressEvent(event);
}

/// Comes in at the whole, or at the last link when going backwards.
void DisplayListView::focusInEvent(QFocusEvent* event)
{
    const bool isBackwards = event->reason() == Qt::BacktabFocusReason;
    if (isBackwards && !m_list.links.empty())
        m_focusedLink = m_list.links.size() - 1;
    setFocusShown(isBackwards || event->reason() == Qt::TabFocusReason);
    QWidget::focusInEvent(event);
}

void DisplayListView::focusOutEvent(QFocusEvent* event)
{
    m_focusedLink.reset();
    setFocusShown(/*isShown=*/false);
    QWidget::focusOutEvent(event);
}

/// The whole widget, then each of its links; then what is next to it, else round again.
bool DisplayListView::focusNextPrevChild(bool isNext)
{
    const std::size_t stops = m_list.links.size() + 1;
    const std::size_t stop = m_focusedLink ? *m_focusedLink + 1 : 0;
    const bool isAtEnd = isNext ? stop + 1 == stops : stop == 0;
    if (isAtEnd && passKeyboard(isNext))
        return true;
    const std::size_t next = (stop + (isNext ? 1 : stops - 1)) % stops;
    focusLink(next == 0 ? std::nullopt : std::optional{next - 1});
    return true;
}

void DisplayListView::focusLink(std::optional<std::size_t> link)
{
    m_focusedLink = link;
    setFocusShown(/*isShown=*/true);
    if (AccessibleView* accessible = accessibleOf(*this))
        accessible->tellFocus();
}

/// Of several above each other the one on top.
std::optional<std::size_t> DisplayListView::linkAt(QPointF place) const
{
    for (std::size_t link = m_list.links.size(); link > 0; --link) {
        if (rectOf(m_list.links[link - 1]).contains(place))
            return link - 1;
    }
    return std::nullopt;
}

std::optional<DisplayListView::Target> DisplayListView::targetAt(QPointF place) const
{
    if (!QRectF{rect()}.contains(place))
        return std::nullopt;
    const auto link = linkAt(place);
    return Target{.link = link ? std::optional{m_list.links[*link].url} : std::nullopt};
}

} // namespace skyvane
