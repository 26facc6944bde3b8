#include "companion/sky/live_scope.h"

#include "companion/sky/scope_layer.h"
#include "companion/sky/sky_cells.h"
#include "companion/sky/trail_on_scope.h"
#include "desk/accessible_view.h"
#include "desk/look/contrast.h"
#include "desk/text.h"
#include "paint/to_qt.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace skyvane {

namespace {

constexpr int mostBlips = 2000;

} // namespace

LiveScope::LiveScope(const FontMeasurer& fonts) : ScopeView(fonts, [](const URL*) {})
{
    setAccessibleName(localizedText("Radar scope"));
    m_rest.setSingleShot(true);
    m_rest.callOnTimeout([this] {
        if (!m_picture.isNull())
            goOnWithPicture();
        update();
    });
}

void LiveScope::showSky(SkyEntry sky, Measures measures, const Trails& trails)
{
    m_blips = {}; // They point into the sky before.
    m_sky = std::move(sky);
    m_units = {.distance = m_sky.unit, .measures = measures};
    m_trails = &trails;
    showScope({.entry = m_sky, .maxBlips = mostBlips}, setApart());
    laidOut(); // The drawing may be the same as before, and not be laid out anew.
}

void LiveScope::laidOut()
{
    m_blips = {list(), m_sky};
    m_hovered.reset();
    m_parts.reset();
    if (underMouse())
        m_hovered = m_blips.at(mapFromGlobal(QCursor::pos()));
    if (AccessibleView* accessible = accessibleOf(*this))
        accessible->renew();
    mapChanged();
}

void LiveScope::mapChanged()
{
    m_picture = {};
    update();
}

void LiveScope::select(const std::string& hex)
{
    if (std::exchange(m_selected, hex) == hex)
        return;
    if (AccessibleView* accessible = hasFocus() ? accessibleOf(*this) : nullptr)
        accessible->tellFocus();
    update();
}

std::optional<QPointF> LiveScope::placeOf(const std::string& hex) const
{
    const auto blip = m_blips.of(hex);
    return blip ? std::optional{m_blips[*blip].center} : std::nullopt;
}

/// Those that stand out, in words.
QString LiveScope::setApart() const
{
    constexpr qsizetype most = 5;
    QStringList texts;
    for (const Aircraft& aircraft : m_sky.aircraft) {
        if (SkyCells::isSetApart(aircraft) && texts.size() < most)
            texts += toQString(aircraft.displayName()) + QStringLiteral(": ") + SkyCells::badge(aircraft);
    }
    return texts.join(QStringLiteral(", "));
}

const std::vector<SpokenPart>& LiveScope::parts() const
{
    if (m_parts)
        return *m_parts;
    m_parts.emplace();
    for (const auto& [aircraft, center, side] : m_blips.all())
        m_parts->push_back({
            .text = SkyCells::spoken(*aircraft, m_units).toStdString(),
            .frame = {.x = center.x() - side / 2, .y = center.y() - side / 2, .width = side, .height = side},
            .link = m_parts->size(),
        });
    return *m_parts;
}

std::optional<std::size_t> LiveScope::focusedLink() const
{
    return m_blips.of(m_selected);
}

void LiveScope::press(std::optional<std::size_t> link)
{
    open(link ? link : m_blips.of(m_selected));
}

void LiveScope::open(std::optional<std::size_t> blip)
{
    if (blip && *blip < m_blips.count())
        emit aircraftActivated(toQString(m_blips[*blip].aircraft->hex));
}

void LiveScope::choose(std::optional<std::size_t> blip)
{
    const std::string hex = blip ? m_blips[*blip].aircraft->hex : std::string{};
    select(hex);
    emit aircraftSelected(toQString(hex));
}

void LiveScope::hover(std::optional<std::size_t> blip)
{
    if (std::exchange(m_hovered, blip) == blip)
        return;
    setCursor(blip ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

void LiveScope::mouseMoveEvent(QMouseEvent* event)
{
    hover(m_blips.at(event->position()));
}

void LiveScope::leaveEvent(QEvent*)
{
    hover(std::nullopt);
}

void LiveScope::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        choose(m_blips.at(event->position()));
}

void LiveScope::mouseReleaseEvent(QMouseEvent*) { }

void LiveScope::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        open(m_blips.at(event->position()));
}

void LiveScope::keyPressEvent(QKeyEvent* event)
{
    const bool isForward = event->key() == Qt::Key_Right || event->key() == Qt::Key_Down;
    const bool isBack = event->key() == Qt::Key_Left || event->key() == Qt::Key_Up;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        open(m_blips.of(m_selected));
    else if ((isForward || isBack) && event->modifiers() == Qt::NoModifier && m_blips.count() > 0)
        step(isForward);
    else
        QWidget::keyPressEvent(event);
}

/// To the next or previous aircraft, round and round.
void LiveScope::step(bool isForward)
{
    const std::size_t last = m_blips.count() - 1;
    const std::size_t before = m_blips.of(m_selected).value_or(isForward ? last : 0);
    choose(isForward ? (before == last ? 0 : before + 1) : (before == 0 ? last : before - 1));
}

void LiveScope::changeEvent(QEvent* event)
{
    ScopeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LanguageChange)
        mapChanged();
}

QColor LiveScope::colorOf(const Blip& blip) const
{
    const ScopePalette palette = m_sky.palette();
    return legible(blip.aircraft->blipColor(palette), toQt(palette.background));
}

void LiveScope::paintEvent(QPaintEvent*)
{
    if (!background())
        return;
    if (m_picture.size() != size() * devicePixelRatioF())
        beginPicture();
    QPainter painter{this};
    painter.drawPixmap(QPointF{}, m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto selected = m_blips.of(m_selected);
    if (selected)
        ScopeLayer::paintSelection(painter, m_blips[*selected].center, colorOf(m_blips[*selected]));
    if (const auto named = m_hovered ? m_hovered : selected)
        paintName(painter, m_blips[*named]);
    paintFocus(painter);
}

void LiveScope::beginPicture()
{
    m_picture = QPixmap{size() * devicePixelRatioF()};
    m_picture.setDevicePixelRatio(devicePixelRatioF());
    m_picture.fill(Qt::transparent);
    m_trailed = 0;
    m_rest.stop();
    {
        QPainter painter{&m_picture};
        painter.setFont(font());
        paintCard(painter);
    }
    goOnWithPicture();
}

/// Trails as long as there is time, and when all are there, what marks aircraft.
void LiveScope::goOnWithPicture()
{
    constexpr qint64 longestTurn = 6; // Milliseconds.
    constexpr std::size_t atOnce = 16;
    QElapsedTimer clock;
    clock.start();
    QPainter painter{&m_picture};
    painter.setFont(font());
    painter.setRenderHint(QPainter::Antialiasing);
    const TrailOnScope trails{m_sky, m_blips.square()};
    while (m_trailed < m_blips.count()) {
        if (m_trailed % atOnce == 0 && clock.elapsed() >= longestTurn) {
            m_rest.start(0);
            return;
        }
        paintTrail(painter, trails, m_blips[m_trailed++]);
    }
    paintMarks(painter);
}

void LiveScope::paintTrail(QPainter& painter, const TrailOnScope& trails, const Blip& blip) const
{
    const auto trail = m_trails->of(blip.aircraft->hex);
    if (trail.size() < 2)
        return;
    const QColor color = colorOf(blip);
    for (const QPolygonF& piece : trails.pieces(trail, blip.center))
        ScopeLayer::paintTrail(painter, piece, color);
}

void LiveScope::paintMarks(QPainter& painter) const
{
    for (const Blip& blip : m_blips.all()) {
        if (SkyCells::isSetApart(*blip.aircraft))
            ScopeLayer::paintMark(painter, *blip.aircraft, blip.center, colorOf(blip));
        if (blip.aircraft->isEmergency())
            paintName(painter, blip);
    }
}

void LiveScope::paintName(QPainter& painter, const Blip& blip) const
{
    const QString name = toQString(blip.aircraft->displayName());
    const QString badge = SkyCells::badge(*blip.aircraft);
    QStringList lines{badge.isEmpty() ? name : name + QStringLiteral(" · ") + badge,
        SkyCells::text(*blip.aircraft, SkyColumn::model, m_units)};
    lines.removeAll(QString{});
    ScopeLayer::paintLabel(painter,
        {.lines = lines, .text = colorOf(blip), .background = toQt(m_sky.palette().background)}, blip.center,
        QRectF{rect()});
}

} // namespace skyvane
