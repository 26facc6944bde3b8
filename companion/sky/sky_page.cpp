#include "companion/sky/sky_page.h"

#include "companion/look/credits.h"
#include "companion/look/line_icon.h"
#include "companion/look/notice_bar.h"
#include "companion/look/range_text.h"
#include "companion/look/type_scale.h"
#include "companion/sky/empty_sky.h"
#include "companion/sky/live_scope.h"
#include "companion/sky/sky_table.h"
#include "companion/sky/sky_words.h"
#include "companion/sky/source_words.h"
#include "desk/text.h"
#include "platform/text/printable.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <QToolButton>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace skyvane {

namespace {

constexpr int margin = 20;
constexpr int smallestScope = 300;
constexpr int leastHeight = 160; ///< Of the scope.
constexpr int widthForScope = 940;
constexpr int widthOfList = 760; ///< What it keeps beside a scope that grows.

} // namespace

SkyPage::SkyPage(
    SkyFeed& feed, AlertStore& alerts, Preferences& preferences, const FontMeasurer& fonts, QWidget* parent)
    : QWidget(parent)
    , m_feed(feed)
    , m_alerts(alerts)
    , m_preferences(preferences)
    , m_filter(new QLineEdit)
    , m_linkProblem(new NoticeBar{localizedText("Dismiss")})
    , m_feedProblem(new NoticeBar{localizedText("Ask again")})
    , m_stack(new QStackedWidget)
    , m_table(new SkyTable)
    , m_empty(new EmptySky)
    , m_scope(new LiveScope{fonts})
    , m_range(new QLabel)
    , m_map(new QCheckBox{localizedText("&Map below the scope")})
    , m_credits(Credits::makeLabel(Credits::aircraft()))
{
    setUpFilter();
    m_scope->setFixedWidth(smallestScope);
    m_range->setAlignment(Qt::AlignCenter);
    m_range->setWordWrap(true);
    m_range->setFont(TypeScale::small(font()));
    TypeScale::makeQuiet(*m_range);
    layOut();
    connectParts();
    m_table->setWatchList(m_alerts.choices().watch);
    showReport();
}

void SkyPage::setUpFilter()
{
    m_filter->setPlaceholderText(localizedText("Filter by name, model, operator, squawk…"));
    m_filter->setAccessibleName(localizedText("Filter"));
    m_filter->setClearButtonEnabled(true);
    for (auto* clear : m_filter->findChildren<QToolButton*>())
        clear->setAccessibleName(localizedText("Clear the filter"));
    m_filter->addAction(lineIcon(LineIcon::search), QLineEdit::LeadingPosition)
        ->setText(localizedText("Filter"));
}

void SkyPage::connectParts()
{
    connect(&m_feed, &SkyFeed::changed, this, &SkyPage::showReport);
    connect(&m_preferences, &Preferences::changed, this, &SkyPage::showReport);
    connect(m_map, &QCheckBox::toggled, &m_preferences, &Preferences::showMap);
    connect(m_filter, &QLineEdit::textChanged, m_table, &SkyTable::setWords);
    connect(m_filter, &QLineEdit::textChanged, this, &SkyPage::showListOrWords);
    connect(m_filter, &QLineEdit::textChanged, this, &SkyPage::showScope);
    connect(m_table, &SkyTable::aircraftActivated, this, &SkyPage::aircraftActivated);
    connect(m_table, &SkyTable::starToggled, this, &SkyPage::toggleStar);
    connect(
        &m_alerts, &AlertStore::changed, this, [this] { m_table->setWatchList(m_alerts.choices().watch); });
    connect(m_table, &SkyTable::aircraftSelected, this,
        [this](const QString& hex) { m_scope->select(hex.toStdString()); });
    connect(m_scope, &LiveScope::aircraftActivated, this, &SkyPage::aircraftActivated);
    connect(m_scope, &LiveScope::aircraftSelected, m_table, &SkyTable::select);
    connect(m_linkProblem, &NoticeBar::actionTriggered, this, [this] { showLinkProblem({}); });
    connect(m_feedProblem, &NoticeBar::actionTriggered, &m_feed, &SkyFeed::refresh);
    connect(m_empty, &EmptySky::actionTriggered, this, [this] {
        if (!m_feed.report().entry.home)
            emit settingsWanted();
        else if (m_feed.report().entry.aircraft.empty())
            m_feed.refresh();
        else
            m_filter->clear();
    });
}

void SkyPage::layOut()
{
    m_stack->addWidget(m_table);
    m_stack->addWidget(m_empty);
    auto* list = new QVBoxLayout;
    list->setSpacing(margin / 2);
    list->addWidget(m_filter);
    list->addWidget(m_stack, /*stretch=*/1);
    auto* body = new QHBoxLayout;
    body->setSpacing(margin);
    body->addLayout(list, /*stretch=*/1);
    auto* scope = new QVBoxLayout;
    scope->setSpacing(margin / 2);
    scope->addWidget(m_scope, /*stretch=*/1);
    scope->addWidget(m_range);
    scope->addWidget(m_map, 0, Qt::AlignHCenter);
    scope->addStretch();
    body->addLayout(scope);
    auto* page = new QVBoxLayout{this};
    page->setContentsMargins(margin, 0, margin, margin / 2);
    page->setSpacing(margin / 2);
    page->addWidget(m_linkProblem);
    page->addWidget(m_feedProblem);
    page->addLayout(body, /*stretch=*/1);
    page->addWidget(m_credits);
}

Heading SkyPage::heading() const
{
    return SkyWords::heading(m_feed.report());
}

void SkyPage::showLinkProblem(const QString& text)
{
    m_linkProblem->show({.text = text});
}

void SkyPage::focusFilter()
{
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

bool SkyPage::leaveFilter()
{
    if (!m_filter->hasFocus())
        return false;
    if (m_filter->text().isEmpty())
        focusList();
    else
        m_filter->clear();
    return true;
}

void SkyPage::focusList()
{
    m_stack->currentWidget()->setFocus();
}

void SkyPage::showReport()
{
    const SkyReport& report = m_feed.report();
    m_scope->setMapShown(m_preferences.isMapShown());
    showAircraft();
    m_map->setChecked(m_preferences.isMapShown());
    m_range->setText(
        localizedText("The outer ring is at %1.", {rangeText(report.entry.radiusNM, report.entry.unit)}));
    m_feedProblem->show(SkyWords::notice(report));
    m_credits->setText(Credits::text(Credits::aircraft(SourceWords::remarks(report))));
    showListOrWords();
    emit headingChanged();
}

/// Once for each answer: that it is asked again changes none of them.
void SkyPage::showAircraft()
{
    const SkyReport& report = m_feed.report();
    const SkyEntry& entry = report.entry;
    Shown now{
        .sky = {.date = entry.date,
            .aircraft = {},
            .radiusNM = entry.radiusNM,
            .home = entry.home,
            .isSample = entry.isSample,
            .unit = entry.unit,
            .accentHex = entry.accentHex},
        .answers = report.answers,
        .measures = m_preferences.measures(),
    };
    if (m_shown == now)
        return;
    m_shown = std::move(now);
    m_table->showEntry(entry, m_preferences.measures());
    m_trails.note(entry);
    showScope();
}

/// The aircraft that are listed.
void SkyPage::showScope()
{
    SkyEntry shown = m_feed.report().entry;
    shown.aircraft = m_table->shownAircraft();
    m_scope->showSky(std::move(shown), m_preferences.measures(), m_trails);
    m_scope->select(m_table->selectedHex().toStdString());
}

void SkyPage::showListOrWords()
{
    const auto instead = SkyWords::instead(m_feed.report());
    if (instead)
        m_empty->show(*instead);
    else if (m_table->rowCount() == 0)
        m_empty->show({
            .title = localizedText("No match"),
            .explanation = localizedText("No aircraft in range has “%1” about it.",
                {Unicode::oneLine(m_filter->text().trimmed().toStdString())}),
            .action = localizedText("Clear the filter"),
        });
    const bool isList = !instead && m_table->rowCount() > 0;
    QWidget* shown = isList ? static_cast<QWidget*>(m_table) : m_empty;
    const bool isAnother = m_stack->currentWidget() != shown;
    m_stack->setCurrentWidget(shown);
    if (isAnother && isVisible() && !m_filter->hasFocus())
        shown->setFocus();
    m_filter->setEnabled(!instead);
}

void SkyPage::toggleStar(const QString& hex)
{
    const auto& aircraft = m_feed.report().entry.aircraft;
    const auto found = std::ranges::find(aircraft, hex.toStdString(), &Aircraft::hex);
    if (found != aircraft.end())
        m_alerts.toggleStar(*found);
}

void SkyPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitScope();
    for (QWidget* widget : std::initializer_list<QWidget*>{m_scope, m_range, m_map})
        widget->setVisible(width() >= widthForScope);
}

/// A square as large as the list and what stands below leave room for. It gives way in its height where a
/// notice needs it.
void SkyPage::fitScope()
{
    const int below = m_range->heightForWidth(smallestScope) + m_map->sizeHint().height()
        + m_credits->sizeHint().height() + 2 * margin;
    const int room = std::min(width() - widthOfList - 3 * margin, height() - below);
    const int side = std::max(smallestScope, room);
    m_scope->setFixedWidth(side);
    m_scope->setMinimumHeight(leastHeight);
    m_scope->setMaximumHeight(side);
}

} // namespace skyvane
