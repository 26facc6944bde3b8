#include "companion/settings/widget_previews.h"

#include "core/views/nearest_aircraft_view.h"
#include "core/views/radar_widget_view.h"
#include "core/views/sample_entry.h"
#include "core/views/sky_board_view.h"
#include "desk/text.h"
#include "paint/widget_card.h"

#include <QGridLayout>

#include <algorithm>

namespace skyvane {

namespace {

DisplayListView* preview(WidgetFamily family, const QString& name, const FontMeasurer& fonts)
{
    auto* view = new DisplayListView{fonts};
    view->setFixedSize(WidgetCard::sizeOf(family));
    view->setAccessibleName(name);
    return view;
}

SkyEntry entryOf(const SettingsDraft& draft)
{
    SkyEntry entry = sampleEntry(draft.accentHex);
    entry.unit = draft.unit.value_or("mi");
    entry.radiusNM = std::clamp(draft.radiusNM, smallestRadiusNM, largestRadiusNM);
    return entry;
}

} // namespace

WidgetPreviews::WidgetPreviews(const FontMeasurer& fonts, QWidget* parent)
    : QWidget(parent)
    , m_nearest(preview(WidgetFamily::small, localizedText("Nearest Aircraft"), fonts))
    , m_radar(preview(WidgetFamily::small, localizedText("Sky Radar"), fonts))
    , m_board(preview(WidgetFamily::large, localizedText("Sky Board"), fonts))
{
    auto* grid = new QGridLayout{this};
    grid->setContentsMargins({});
    const int spacing = m_board->width() - m_nearest->width() - m_radar->width();
    grid->setSpacing(spacing);
    grid->addWidget(m_nearest, 0, 0);
    grid->addWidget(m_radar, 0, 1);
    grid->addWidget(m_board, 1, 0, 1, 2);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void WidgetPreviews::showDraft(const SettingsDraft& draft)
{
    const SkyEntry entry = entryOf(draft);
    const Color background = entry.palette().background;
    m_nearest->showCard(NearestAircraftView{.entry = entry}.body(), background);
    m_radar->showCard(
        RadarWidgetView{.entry = entry, .linksEnabled = false}.body(WidgetFamily::small), background);
    m_board->showCard(SkyBoardView{.entry = entry, .linksEnabled = false}.body(), background);
}

} // namespace skyvane
