#include "companion/map/earth_map.h"

#include "companion/look/type_scale.h"
#include "desk/look/contrast.h"
#include "desk/text.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double farthestZoom = 0.02; // Points a nautical mile: the whole Earth.
constexpr double nearestZoom = 150;
constexpr double zoomStep = 1.5;

QColor mixed(const QColor& one, const QColor& other, float share)
{
    const auto between = [share](float from, float to) { return from + (to - from) * share; };
    return QColor::fromRgbF(between(one.redF(), other.redF()), between(one.greenF(), other.greenF()),
        between(one.blueF(), other.blueF()));
}

} // namespace

EarthMap::EarthMap(QWidget* parent)
    : QWidget(parent)
    , m_nearer(makeButton(QStringLiteral("+"), localizedText("Zoom in")))
    , m_farther(makeButton(QStringLiteral("\u2212"), localizedText("Zoom out")))
    , m_back(makeButton(QStringLiteral("\u2302"), localizedText("Back to home")))
{
    setAccessibleName(localizedText("Map around your home"));
    setAccessibleDescription(
        localizedText("Arrow keys move the map, plus and minus zoom, Enter puts your home into its middle."));
    setToolTip(localizedText("Click where your home is. Drag moves the map, plus and minus zoom."));
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::CrossCursor);
    setFont(TypeScale::small(font()));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&m_loader, &MapLoader::loaded, this, qOverload<>(&EarthMap::update));
    const auto middle = [this] { return frame().area().center(); };
    connect(m_nearer, &QToolButton::clicked, this, [this, middle] { zoom(zoomStep, middle()); });
    connect(m_farther, &QToolButton::clicked, this, [this, middle] { zoom(1 / zoomStep, middle()); });
    connect(m_back, &QToolButton::clicked, this, &EarthMap::fit);
}

QToolButton* EarthMap::makeButton(const QString& text, const QString& name)
{
    auto* button = new QToolButton{this};
    button->setText(text);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setFocusPolicy(Qt::NoFocus); // The map's own keys do the same.
    button->setCursor(Qt::ArrowCursor);
    constexpr int side = 28;
    button->setFixedSize(side, side);
    return button;
}

void EarthMap::showSubject(const MapSubject& subject)
{
    const bool isFirst = !m_subject.home && subject.home;
    m_subject = subject;
    m_back->setVisible(subject.home.has_value());
    const bool isOutside = subject.home && !QRectF{rect()}.contains(frame().place(*subject.home));
    if (isFirst || isOutside || !m_isMoved)
        fit();
    update();
}

MapFrame EarthMap::frame() const
{
    return {m_middle, m_pointsPerNM, QRectF{rect()}};
}

/// Home in the middle with the radius around it.
void EarthMap::fit()
{
    m_isMoved = false;
    if (m_subject.home) {
        constexpr double share = 0.42; // Of the smaller side.
        const double radiusNM = std::clamp(m_subject.radiusNM, 1.0, 5000.0);
        m_middle = *m_subject.home;
        m_pointsPerNM = std::clamp(share * std::min(width(), height()) / radiusNM, farthestZoom, nearestZoom);
    }
    update();
}

void EarthMap::moveBy(const QPointF& points)
{
    const MapFrame now = frame();
    if (const auto middle = now.coordinate(now.area().center() - points))
        m_middle = *middle;
    m_isMoved = true;
    update();
}

/// What lies there stays there, as far as a globe allows.
void EarthMap::zoom(double factor, const QPointF& fixed)
{
    const double before = m_pointsPerNM;
    const QPointF away = fixed - frame().area().center();
    m_pointsPerNM = std::clamp(m_pointsPerNM * factor, farthestZoom, nearestZoom);
    moveBy(away * (1 - m_pointsPerNM / before));
}

void EarthMap::choose(const QPointF& place)
{
    if (const auto position = frame().coordinate(place)) {
        m_isMoved = true; // The map stays as it lies; what moves is home.
        emit homeChosen(*position);
    }
}

MapInk EarthMap::ink() const
{
    const QColor base = palette().color(QPalette::Base);
    const QColor text = palette().color(QPalette::Text);
    constexpr Color home{.red = 0.85, .green = 0.25, .blue = 0.2};
    return {.coast = mixed(base, text, 0.6F),
        .border = mixed(base, text, 0.4F),
        .city = mixed(base, text, 0.85F),
        .airport = legible({.red = 0.2, .green = 0.45, .blue = 0.85}, base),
        .home = legible(home, base)};
}

void EarthMap::paintEvent(QPaintEvent*)
{
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    if (const MapData* earth = m_loader.data()) {
        m_isReady = true;
        const auto scene = MapScene::of(*earth, frame(), m_subject, QFontMetricsF{font()}, {});
        paintMap(scene, ink(), painter);
    }
    const bool isFocused = hasFocus();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen{isFocused ? palette().color(QPalette::Highlight) : outlineOn(palette()), isFocused ? 2.0 : 1.0});
    painter.drawRect(QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5));
    if (!isFocused)
        return;
    constexpr double arm = 9;
    const QPointF middle = frame().area().center();
    painter.drawLine(middle - QPointF{arm, 0}, middle + QPointF{arm, 0});
    painter.drawLine(middle - QPointF{0, arm}, middle + QPointF{0, arm});
}

void EarthMap::resizeEvent(QResizeEvent*)
{
    constexpr int margin = 8;
    int top = margin;
    for (QToolButton* button : {m_nearer, m_farther, m_back}) {
        button->move(isRightToLeft() ? margin : width() - margin - button->width(), top);
        top += button->height() + 4;
    }
    if (!m_isMoved)
        fit();
}

void EarthMap::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_pressed = event->position();
}

void EarthMap::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_pressed)
        return;
    const QPointF place = event->position();
    if (!m_dragged && (place - *m_pressed).manhattanLength() < QApplication::startDragDistance())
        return;
    moveBy(place - m_dragged.value_or(*m_pressed));
    m_dragged = place;
}

void EarthMap::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (m_pressed && !m_dragged)
        choose(event->position());
    m_pressed.reset();
    m_dragged.reset();
}

/// Only where it has the keyboard: else the wheel turns the page on which it stands.
void EarthMap::wheelEvent(QWheelEvent* event)
{
    constexpr double notch = 120;
    const double turns = event->angleDelta().y() / notch;
    if (!hasFocus() || turns == 0) {
        event->ignore();
        return;
    }
    zoom(std::pow(zoomStep, turns), event->position());
}

void EarthMap::keyPressEvent(QKeyEvent* event)
{
    const double step = std::min(width(), height()) / 6.0;
    const QPointF middle = frame().area().center();
    switch (event->key()) {
    case Qt::Key_Left:
        return moveBy({step, 0});
    case Qt::Key_Right:
        return moveBy({-step, 0});
    case Qt::Key_Up:
        return moveBy({0, step});
    case Qt::Key_Down:
        return moveBy({0, -step});
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoom(zoomStep, middle);
    case Qt::Key_Minus:
        return zoom(1 / zoomStep, middle);
    case Qt::Key_Home:
        return fit();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return choose(middle);
    default:
        QWidget::keyPressEvent(event);
    }
}

void EarthMap::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void EarthMap::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

} // namespace skyvane
