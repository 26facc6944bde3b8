#include "companion/aircraft/aircraft_page.h"

#include "companion/aircraft/aircraft_words.h"
#include "companion/aircraft/fact_grid.h"
#include "companion/aircraft/outlook.h"
#include "companion/aircraft/photo_panel.h"
#include "companion/aircraft/route_panel.h"
#include "companion/aircraft/sky_dome.h"
#include "companion/aircraft/watch_words.h"
#include "companion/alerts/star_button.h"
#include "companion/look/credits.h"
#include "companion/look/notice_bar.h"
#include "companion/look/scrolling.h"
#include "companion/look/type_scale.h"
#include "companion/sky/empty_sky.h"
#include "companion/sky/live_scope.h"
#include "desk/look/contrast.h"
#include "desk/text.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QStackedWidget>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace skyvane {

namespace {

constexpr int margin = 20;
constexpr int columnGap = 32;
constexpr int pictureWidth = 420;
constexpr int viewGap = 12;
constexpr int largestViews = 1200; ///< The sky and the scope side by side.
constexpr int widthForColumns = 860;

QLabel* plainLabel(const QFont& font)
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    label->setFont(font);
    return label;
}

void showText(QLabel& label, const QString& text)
{
    label.setText(text);
    label.setVisible(!text.isEmpty());
}

/// The scope with this aircraft alone.
SkyEntry alone(SkyEntry entry, const Aircraft& aircraft)
{
    entry.aircraft = {aircraft};
    return entry;
}

QWidget* scrolling(QWidget* content)
{
    auto* page = new QWidget;
    fillScrolling(*page, content);
    return page;
}

} // namespace

AircraftPage::AircraftPage(AircraftSources sources, const FontMeasurer& fonts, QWidget* parent)
    : QWidget(parent)
    , m_sources(std::move(sources))
    , m_notice(new NoticeBar{localizedText("Ask again")})
    , m_stack(new QStackedWidget)
    , m_empty(new EmptySky)
    , m_columns(new QBoxLayout{QBoxLayout::LeftToRight})
    , m_photo(new PhotoPanel{m_sources.open})
    , m_views(new QBoxLayout{QBoxLayout::LeftToRight})
    , m_dome(new SkyDome)
    , m_scope(new LiveScope{fonts})
    , m_name(plainLabel(TypeScale::display(font())))
    , m_star(new StarButton)
    , m_identity(plainLabel(font()))
    , m_alarm(plainLabel(TypeScale::strong(font())))
    , m_routePanel(new RoutePanel)
    , m_look(plainLabel(TypeScale::title(font())))
    , m_pass(plainLabel(font()))
    , m_facts(new FactGrid)
{
    auto* content = new QWidget;
    m_columns->setContentsMargins(margin, margin / 2, margin, margin);
    m_columns->setSpacing(columnGap);
    m_columns->addWidget(makePictures(), 0, Qt::AlignTop);
    m_columns->addWidget(makeDetails(), /*stretch=*/1, Qt::AlignTop);
    content->setLayout(m_columns);
    m_stack->addWidget(scrolling(content));
    m_stack->addWidget(m_empty);
    auto* noticeRow = new QHBoxLayout;
    noticeRow->setContentsMargins(margin, 0, margin, 0);
    noticeRow->addWidget(m_notice);
    auto* page = new QVBoxLayout{this};
    page->setContentsMargins(0, 0, 0, 0);
    page->addLayout(noticeRow);
    page->addWidget(m_stack, /*stretch=*/1);

    connect(&m_sources.feed, &SkyFeed::changed, this, &AircraftPage::showReport);
    connect(&m_sources.preferences, &Preferences::changed, this, &AircraftPage::showReport);
    connect(m_notice, &NoticeBar::actionTriggered, &m_sources.feed, &SkyFeed::refresh);
    connect(m_star, &QToolButton::clicked, this, &AircraftPage::toggleStar);
    connect(&m_sources.alerts, &AlertStore::changed, this, &AircraftPage::showStar);
    connect(m_empty, &EmptySky::actionTriggered, this, [this] {
        if (m_watch && m_watch->state() == AircraftWatch::State::noHome)
            emit settingsWanted();
        else
            m_sources.feed.refresh();
    });
}

QWidget* AircraftPage::makePictures()
{
    m_views->setSpacing(viewGap);
    m_views->addWidget(m_dome);
    m_views->addWidget(m_scope);
    m_views->addStretch();
    auto* pictures = new QWidget;
    auto* column = new QVBoxLayout{pictures};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(margin);
    column->addWidget(m_photo);
    column->addLayout(m_views);
    return pictures;
}

QWidget* AircraftPage::makeDetails()
{
    auto* details = new QWidget;
    auto* column = new QVBoxLayout{details};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    auto* title = new QHBoxLayout;
    title->addWidget(m_name, /*stretch=*/1);
    title->addWidget(m_star, 0, Qt::AlignTop);
    column->addLayout(title);
    column->addWidget(m_identity);
    column->addWidget(m_alarm);
    column->addWidget(m_routePanel);
    column->addSpacing(margin);
    column->addWidget(m_look);
    column->addWidget(m_pass);
    column->addSpacing(margin);
    column->addWidget(m_facts);
    column->addSpacing(margin / 2);
    column->addWidget(Credits::makeLabel(Credits::aircraft()));
    return details;
}

void AircraftPage::showAircraft(const std::string& hex)
{
    leave();
    m_watch.emplace(hex);
    showFlight(std::nullopt);
    m_photo->showPlace();
    m_photograph = m_sources.lookups.photograph(
        hex, [this](const std::optional<Photograph>& found) { m_photo->showPhotograph(found); });
    showReport();
    if (m_watch->state() != AircraftWatch::State::inRange)
        m_sources.feed.refresh();
}

void AircraftPage::leave()
{
    m_watch.reset();
    m_callsign.clear();
    m_flight = {};
    m_photograph = {};
}

Heading AircraftPage::heading() const
{
    if (!m_watch)
        return {};
    return WatchWords::heading(*m_watch, m_sources.feed.report());
}

void AircraftPage::showReport()
{
    if (!m_watch)
        return;
    const SkyReport& report = m_sources.feed.report();
    m_watch->look(report);
    const auto instead = WatchWords::instead(*m_watch, report);
    if (instead)
        m_empty->show(*instead);
    else if (m_watch->aircraft())
        showDetails(*m_watch->aircraft());
    m_notice->show(WatchWords::notice(*m_watch, report));
    m_stack->setCurrentIndex(instead ? 1 : 0);
    emit headingChanged();
}

void AircraftPage::showDetails(const Aircraft& aircraft)
{
    const SkyEntry& entry = m_sources.feed.report().entry;
    m_name->setText(toQString(aircraft.displayName()));
    showStar();
    showIdentity();
    showText(*m_alarm,
        AircraftWords::alarm(aircraft, /*isThere=*/m_watch->state() == AircraftWatch::State::inRange));
    colorAlarm(aircraft.blipColor(entry.palette()));
    showWhereToLook(aircraft);
    m_facts->showFacts(AircraftWords::facts(
        aircraft, {.distance = entry.unit, .measures = m_sources.preferences.measures()}));
    showScope(aircraft);
    lookUpFlight(aircraft);
}

void AircraftPage::toggleStar()
{
    if (m_watch && m_watch->aircraft())
        m_sources.alerts.toggleStar(*m_watch->aircraft());
    showStar(); // The click has changed it, whatever came of it.
}

void AircraftPage::showStar()
{
    if (m_watch && m_watch->aircraft())
        m_star->setOn(m_sources.alerts.isStarred(*m_watch->aircraft()));
}

void AircraftPage::showScope(const Aircraft& aircraft)
{
    const SkyEntry& entry = m_sources.feed.report().entry;
    m_scope->setMapShown(m_sources.preferences.isMapShown());
    m_scope->showSky(alone(entry, aircraft), m_sources.preferences.measures(), m_sources.trails);
    m_scope->select(aircraft.hex);
}

void AircraftPage::showWhereToLook(const Aircraft& aircraft)
{
    const bool isThere = m_watch->state() == AircraftWatch::State::inRange;
    Outlook outlook = Outlook::of(aircraft, m_sources.feed.report().entry, isThere);
    showText(*m_look, outlook.look);
    showText(*m_pass, outlook.pass);
    m_dome->showSky(std::move(outlook.sky), (outlook.look + QLatin1Char{' '} + outlook.pass).trimmed());
}

void AircraftPage::colorAlarm(const Color& color)
{
    QPalette colors;
    colors.setColor(QPalette::WindowText, legible(color, palette().color(QPalette::Window)));
    m_alarm->setPalette(colors);
}

void AircraftPage::lookUpFlight(const Aircraft& aircraft)
{
    const std::string callsign = aircraft.flight.value_or("");
    if (callsign.empty() || callsign == m_callsign)
        return;
    m_callsign = callsign;
    showFlight(std::nullopt);
    m_flight = m_sources.lookups.flight(
        aircraft, [this](const std::optional<RouteAPI::Flight>& found) { showFlight(found); });
}

void AircraftPage::showFlight(const std::optional<RouteAPI::Flight>& flight)
{
    m_airline = flight ? flight->airline : std::nullopt;
    m_routePanel->showRoute(flight ? flight->route : std::nullopt);
    showIdentity();
}

void AircraftPage::showIdentity()
{
    if (m_watch && m_watch->aircraft())
        showText(*m_identity, AircraftWords::identity(*m_watch->aircraft(), m_airline));
}

void AircraftPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const bool isWide = width() >= widthForColumns;
    m_columns->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    const int beside = 2 * margin + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int room = std::max(isWide ? width() * 2 / 5 : width() - beside, pictureWidth);
    const int side = (std::min(room, largestViews) - viewGap) / 2;
    m_dome->setFixedSize(side, side);
    m_scope->setFixedSize(side, side);
}

void AircraftPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showReport();
}

} // namespace skyvane
