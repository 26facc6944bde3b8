#include "companion/settings/home_section.h"

#include "companion/map/earth_map.h"
#include "companion/position/coordinates.h"
#include "companion/position/place_field.h"
#include "companion/position/position_field.h"
#include "companion/position/whereabouts.h"
#include "core/feed/search_radius.h"
#include "core/model/distance_unit.h"
#include "desk/text.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

namespace skyvane {

namespace {

constexpr int longestName = 60; // Characters.

/// With its note below it.
QLayout* noted(QWidget* field, QLabel* note)
{
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(field);
    column->addWidget(note);
    return column;
}

QLabel* labelOf(QWidget& field, const QString& text)
{
    auto* label = new QLabel{text};
    label->setBuddy(&field);
    return label;
}

} // namespace

HomeSection::HomeSection(
    Settings& settings, PlaceSearch::Load load, const QDBusConnection& systemBus, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_placeNote(makeNote())
    , m_positionNote(makeNote())
    , m_nameNote(makeNote())
    , m_place(new PlaceField{std::move(load), *m_placeNote})
    , m_position(new PositionField{systemBus, *m_positionNote})
    , m_name(new MarkedLineEdit{*m_nameNote})
    , m_map(new EarthMap)
    , m_undo(new QPushButton{localizedText("Undo")})
{
    m_undo->hide();
    m_name->setMaxLength(longestName);
    setFocusProxy(m_place);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins({});
    column->setSpacing(12);
    column->addWidget(fields());
    column->addWidget(m_map);
    connectFields();
    connect(&m_settings, &Settings::draftChanged, this, &HomeSection::showDraft);
    showDraft();
}

QWidget* HomeSection::fields()
{
    auto* widget = new QWidget;
    auto* form = new QFormLayout{widget};
    form->setContentsMargins({});
    form->setVerticalSpacing(12);
    form->setHorizontalSpacing(12);
    form->setLabelAlignment(Qt::AlignLeft);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(labelOf(*m_place, localizedText("&Place")), noted(m_place, m_placeNote));
    auto* position = new QVBoxLayout;
    position->setSpacing(4);
    position->addWidget(m_position);
    auto* below = new QHBoxLayout;
    below->addWidget(m_positionNote, 1);
    below->addWidget(m_undo, 0, Qt::AlignRight | Qt::AlignTop);
    position->addLayout(below);
    form->addRow(labelOf(m_position->line(), localizedText("Pos&ition")), position);
    form->addRow(labelOf(*m_name, localizedText("&Name")), noted(m_name, m_nameNote));
    return widget;
}

void HomeSection::connectFields()
{
    using Settled = Settings::Settled;
    connect(m_place, &PlaceField::chosen, this, &HomeSection::choosePlace);
    connect(m_place, &PlaceField::positionChosen, this, [this](const Coordinate& position) {
        remember();
        setHome(Coordinates::rounded(position), Settled::soon);
    });
    connect(m_position, &PositionField::typed, this, [this](const std::optional<Coordinate>& position) {
        m_before.reset();
        if (position)
            setHome(*position, Settled::afterTyping);
        else
            goBackToSaved();
    });
    const auto to = [this](const LocationFix& fix) {
        return exactness(*fix.accuracy, m_settings.draft().unit.value_or(DistanceUnit::standard));
    };
    connect(m_position, &PositionField::improving, this, [this, to](const LocationFix& best) {
        if (best.accuracy)
            m_position->line().setRemark(
                localizedText("Asking where you are… So far to about %1.", {to(best)}));
    });
    connect(m_position, &PositionField::located, this, [this, to](const LocationFix& fix) {
        remember();
        m_position->line().setRemark(fix.accuracy
                ? localizedText("Found by the location service of your system, to about %1.", {to(fix)})
                : localizedText("Found by the location service of your system."));
        setHome(fix.position, Settled::soon);
    });
    connect(m_map, &EarthMap::homeChosen, this, [this](const Coordinate& position) {
        remember();
        m_position->line().setRemark({});
        setHome(Coordinates::rounded(position), Settled::soon);
    });
    connect(m_name, &QLineEdit::textEdited, this, &HomeSection::rename);
    connect(m_undo, &QPushButton::clicked, this, &HomeSection::undo);
    connect(m_position, &PositionField::finished, &m_settings, &Settings::settle);
    connect(m_name, &QLineEdit::editingFinished, &m_settings, &Settings::settle);
}

void HomeSection::choosePlace(const Place& place)
{
    remember();
    m_position->line().setRemark({});
    m_undescribed.reset();
    m_chosen = place.coordinate;
    SettingsDraft draft = m_settings.draft();
    draft.place = place.coordinate;
    draft.label = m_givenName = place.name;
    m_label.reset(); // Whatever stands in the line, this is the name now.
    m_settings.choose(draft);
    showDraft();
}

void HomeSection::setHome(const Coordinate& position, Settings::Settled settled)
{
    SettingsDraft draft = m_settings.draft();
    if (!m_undescribed)
        m_undescribed = draft;
    draft.place = position;
    m_settings.choose(draft, settled);
    showDraft();
    describe(settled);
}

/// What stands in the line is no position.
void HomeSection::goBackToSaved()
{
    SettingsDraft draft = m_settings.draft();
    draft.place = m_settings.saved().place;
    if (draft.label == m_givenName)
        draft.label = m_settings.saved().label;
    m_settings.choose(draft, Settings::Settled::afterTyping);
    m_undescribed.reset();
    m_place->search().consult({});
    m_place->setRemark({});
    showDraft();
}

/// Says where the new position is, and gives home the name of there unless the user gave it one.
void HomeSection::describe(Settings::Settled settled)
{
    m_place->search().consult([this, settled](const PlaceIndex& places) {
        const auto before = std::exchange(m_undescribed, std::nullopt);
        constexpr double stillThere = 27; // Nautical miles.
        SettingsDraft draft = m_settings.draft();
        const auto nearby = draft.place ? places.nearest(*draft.place) : std::nullopt;
        m_place->clearChoice(
            nearby ? whereabouts(*nearby, draft.unit.value_or(DistanceUnit::standard)) : QString{});
        if (!draft.place || !before || isOwnName(*before, places))
            return;
        draft.label = nearby && nearby->distanceNM < stillThere ? nearby->name : localized("Home");
        m_givenName = draft.label;
        m_settings.choose(draft, settled);
    });
}

/// Whether the user thought of it: it is neither given here nor that of a place around.
bool HomeSection::isOwnName(const SettingsDraft& draft, const PlaceIndex& places) const
{
    return draft.label != m_givenName && draft.label != localized("Home")
        && !(draft.place && places.isNameOfThere(draft.label, *draft.place));
}

void HomeSection::remember()
{
    m_before = m_settings.draft();
}

void HomeSection::undo()
{
    const auto before = std::exchange(m_before, std::nullopt);
    if (!before)
        return;
    m_position->line().setRemark({});
    m_undescribed.reset();
    m_place->search().consult({});
    m_place->clearChoice({});
    if (!before->place)
        m_settings.forgetHome();
    SettingsDraft draft = m_settings.draft();
    draft.place = before->place;
    draft.label = before->label;
    m_settings.choose(draft);
    showDraft();
    m_position->line().setFocus();
}

void HomeSection::rename(const QString& label)
{
    const QString name = label.trimmed();
    m_name->setProblem(name.isEmpty() ? localizedText("Give your home a name.") : QString{});
    SettingsDraft draft = m_settings.draft();
    draft.label = name.isEmpty() ? m_settings.saved().label : name.toStdString();
    m_label = draft.label;
    m_settings.choose(draft, Settings::Settled::afterTyping);
}

void HomeSection::showDraft()
{
    const SettingsDraft& draft = m_settings.draft();
    if (m_chosen && m_chosen != draft.place) {
        m_chosen.reset();
        m_place->clearChoice({});
    }
    m_position->showPosition(draft.place);
    const QString label = toQString(draft.label);
    if (std::exchange(m_label, draft.label) != draft.label) {
        m_name->setText(label);
        m_name->setProblem({});
    }
    m_undo->setVisible(m_before && m_before->place != draft.place);
    m_map->showSubject({.home = draft.place, .radiusNM = SearchRadius::bounded(draft.radiusNM)});
}

} // namespace skyvane
