#include "desk/view_widget.h"

#include "paint/painter.h"
#include "paint/widget_card.h"
#include "ui/layout/layout.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace skyvane {

namespace {

constexpr double linkRadius = 4;

QString spoken(const DisplayList& list)
{
    QStringList lines;
    for (const DisplayItem& item : list.items) {
        if (const auto* line = std::get_if<TextLine>(&item))
            lines += QString::fromStdString(line->string);
    }
    return lines.join(QStringLiteral(", "));
}

} // namespace

ViewWidget::ViewWidget(const FontMeasurer& fonts, QWidget* parent) : QWidget(parent), m_fonts(fonts)
{
    setMouseTracking(true);
}

void ViewWidget::showBare(View view)
{
    show(std::move(view), std::nullopt);
}

void ViewWidget::showCard(View view, const Color& background)
{
    show(std::move(view), background);
}

void ViewWidget::show(View view, std::optional<Color> card)
{
    if (m_view == view && m_card == card)
        return;
    m_view = std::move(view);
    m_card = card;
    layOut();
}

void ViewWidget::layOut()
{
    const Size space{
        .width = std::max(width() - 2 * margin(), 0.0), .height = std::max(height() - 2 * margin(), 0.0)};
    m_list = m_view ? skyvane::layout(*m_view, space, m_fonts) : DisplayList{.size = space};
    m_pressedLink.reset();
    if (m_focusedLink >= m_list.links.size())
        m_focusedLink.reset();
    setFocusPolicy(m_list.links.empty() ? Qt::NoFocus : Qt::TabFocus);
    setAccessibleDescription(spoken(m_list));
    update();
}

double ViewWidget::margin() const
{
    return m_card ? WidgetContainer::contentMargin : 0;
}

void ViewWidget::paintEvent(QPaintEvent*)
{
    QPainter painter{this};
    if (m_card) {
        const DisplayList empty{.size = {.width = 1.0 * width(), .height = 1.0 * height()}};
        WidgetCard::paint(empty, *m_card, painter, m_fonts);
    }
    painter.save();
    painter.translate(margin(), margin());
    painter.setRenderHint(QPainter::Antialiasing);
    skyvane::paint(m_list, painter, m_fonts);
    painter.restore();
    if (hasFocus() && m_focusedLink)
        WidgetCard::paintFocus(frameOf(*m_focusedLink), linkRadius, painter);
}

void ViewWidget::resizeEvent(QResizeEvent*)
{
    layOut();
}

void ViewWidget::mouseMoveEvent(QMouseEvent* event)
{
    setCursor(linkAt(event->position()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void ViewWidget::mousePressEvent(QMouseEvent* event)
{
    m_pressedLink = event->button() == Qt::LeftButton ? linkAt(event->position()) : std::nullopt;
    event->setAccepted(m_pressedLink.has_value());
}

void ViewWidget::mouseReleaseEvent(QMouseEvent* event)
{
    const auto pressed = std::exchange(m_pressedLink, std::nullopt);
    if (event->button() == Qt::LeftButton && pressed && linkAt(event->position()) == pressed)
        emit linkActivated(URL{m_list.links[*pressed].url});
}

void ViewWidget::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && m_focusedLink)
        emit linkActivated(URL{m_list.links[*m_focusedLink].url});
    else
        QWidget::keyPressEvent(event);
}

/// Comes in at the first link, or at the last one when going backwards.
void ViewWidget::focusInEvent(QFocusEvent* event)
{
    if (!m_list.links.empty() && event->reason() == Qt::BacktabFocusReason)
        m_focusedLink = m_list.links.size() - 1;
    else if (!m_list.links.empty() && !m_focusedLink)
        m_focusedLink = 0;
    QWidget::focusInEvent(event);
    update();
}

void ViewWidget::focusOutEvent(QFocusEvent* event)
{
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        m_focusedLink.reset();
    QWidget::focusOutEvent(event);
    update();
}

bool ViewWidget::focusNextPrevChild(bool isNext)
{
    const std::size_t current = m_focusedLink.value_or(0);
    const bool isAtEnd = isNext ? current + 1 >= m_list.links.size() : current == 0;
    if (!m_focusedLink || isAtEnd)
        return QWidget::focusNextPrevChild(isNext);
    m_focusedLink = isNext ? current + 1 : current - 1;
    update();
    return true;
}

QRectF ViewWidget::frameOf(std::size_t link) const
{
    const Rect& frame = m_list.links[link].frame;
    return {frame.x + margin(), frame.y + margin(), frame.width, frame.height};
}

std::optional<std::size_t> ViewWidget::linkAt(QPointF place) const
{
    std::optional<std::size_t> found;
    for (std::size_t link = 0; link < m_list.links.size(); ++link) {
        if (frameOf(link).contains(place))
            found = link;
    }
    return found;
}

} // namespace skyvane
