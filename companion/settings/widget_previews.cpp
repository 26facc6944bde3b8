#include "companion/settings/widget_previews.h"

#include "companion/look/marked_line_edit.h"
#include "companion/settings/accents.h"
#include "core/views/sample_entry.h"
#include "desk/text.h"
#include "paint/widget_card.h"

#include <QAccessible>
#include <QGridLayout>
#include <QLabel>

#include <utility>

namespace skyvane {

namespace {

constexpr int columns = 2; // Of small widgets; each other one has a row of its own.

DisplayListView* makeView(const Widget& widget, const FontMeasurer& fonts)
{
    auto* view = new DisplayListView{fonts};
    view->setFixedSize(WidgetCard::sizeOf(widget.supportedFamilies.front()));
    view->setAccessibleName(toQString(widget.displayName));
    return view;
}

} // namespace

WidgetPreviews::WidgetPreviews(const FontMeasurer& fonts, QWidget* parent)
    : QWidget(parent), m_legibility(makeNote())
{
    auto* grid = new QGridLayout{this};
    grid->setContentsMargins({});
    grid->setSpacing(WidgetCard::sizeOf(WidgetFamily::large).width()
        - columns * WidgetCard::sizeOf(WidgetFamily::small).width());
    int place = 0;
    for (const Widget& widget : SkyvaneWidgetBundle{}.body()) {
        auto* view = makeView(widget, fonts);
        const bool isSmall = widget.supportedFamilies.front() == WidgetFamily::small;
        if (!isSmall && place % columns != 0)
            place += columns - place % columns;
        grid->addWidget(view, place / columns, place % columns, 1, isSmall ? 1 : columns);
        place += isSmall ? 1 : columns;
        m_previews.push_back({.widget = widget, .view = view});
    }
    grid->addWidget(m_legibility, grid->rowCount(), 0, 1, columns);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void WidgetPreviews::showDraft(const SettingsDraft& draft)
{
    m_draft = draft;
    showWidgets();
}

void WidgetPreviews::showSky(const SkyEntry& own)
{
    if (m_own == own)
        return;
    m_own = own;
    showWidgets();
}

/// Without the aircraft that the chosen radius leaves out.
SkyEntry WidgetPreviews::shownSky() const
{
    const auto& home = m_own ? m_own->home : std::nullopt;
    if (!home || m_draft.place != Coordinate{.latitude = home->latitude, .longitude = home->longitude})
        return m_draft.asChosen(sampleEntry());
    SkyEntry entry = m_draft.asChosen(*m_own);
    std::erase_if(entry.aircraft,
        [&](const Aircraft& aircraft) { return aircraft.distanceNM.value_or(0) > entry.radiusNM; });
    return entry.aircraft.empty() ? m_draft.asChosen(sampleEntry()) : entry;
}

void WidgetPreviews::showWidgets()
{
    const SkyEntry entry = shownSky();
    for (const auto& [widget, view] : m_previews) {
        WidgetContent content = widget.content(entry, widget.supportedFamilies.front());
        view->showCard(std::move(content.view), content.containerBackground);
    }
    showLegibility(isEasyToRead(entry.palette()));
}

/// A screen reader hears it too, though the focus is elsewhere; once, however many colours are tried.
void WidgetPreviews::showLegibility(bool isEasy)
{
    if (m_legibility->isHidden() == isEasy)
        return;
    m_legibility->setText(
        isEasy ? QString{} : localizedText("Hard to read: small texts need a lighter colour."));
    m_legibility->setHidden(isEasy);
    QAccessibleEvent event{m_legibility, QAccessible::Alert};
    if (!isEasy)
        QAccessible::updateAccessibility(&event);
}

} // namespace skyvane
