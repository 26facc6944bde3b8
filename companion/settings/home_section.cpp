#include "companion/settings/home_section.h"

#include "companion/position/place_field.h"
#include "companion/position/position_field.h"
#include "companion/settings/home_scope.h"
#include "core/config/scope_palette.h"
#include "desk/text.h"
#include "paint/widget_card.h"

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

HomeSection::HomeSection(Settings& settings, PlaceSearch::Load load, const FontMeasurer& fonts,
    const QDBusConnection& systemBus, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_placeNote(makeNote())
    , m_positionNote(makeNote())
    , m_nameNote(makeNote())
    , m_place(new PlaceField{std::move(load), *m_placeNote})
    , m_position(new PositionField{systemBus, *m_positionNote})
    , m_name(new MarkedLineEdit{*m_nameNote})
    , m_scope(new DisplayListView{fonts})
{
    m_name->setMaxLength(longestName);
    m_scope->setFixedSize(WidgetCard::sizeOf(WidgetFamily::small));
    m_scope->setAccessibleName(localizedText("Scope around your home"));
    setFocusProxy(m_place);
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins({});
    row->setSpacing(24);
    row->addWidget(fields(), 1);
    row->addWidget(m_scope, 0, Qt::AlignTop);
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
    form->addRow(labelOf(m_position->line(), localizedText("Pos&ition")), noted(m_position, m_positionNote));
    form->addRow(labelOf(*m_name, localizedText("&Name")), noted(m_name, m_nameNote));
    return widget;
}

void HomeSection::connectFields()
{
    using Settled = Settings::Settled;
    connect(m_place, &PlaceField::chosen, this, [this](const Place& place) {
        SettingsDraft draft = m_settings.draft();
        draft.place = place.coordinate;
        draft.label = place.name;
        m_label.reset(); // Whatever stands in the line, this is the name now.
        m_settings.choose(draft);
        showDraft();
    });
    connect(m_position, &PositionField::typed, this, [this](const std::optional<Coordinate>& position) {
        setHome(position ? position : m_settings.saved().place, Settled::afterTyping);
    });
    connect(m_position, &PositionField::located, this,
        [this](const Coordinate& position) { setHome(position, Settled::soon); });
    connect(m_name, &QLineEdit::textEdited, this, &HomeSection::rename);
    connect(m_position, &PositionField::finished, &m_settings, &Settings::settle);
    connect(m_name, &QLineEdit::editingFinished, &m_settings, &Settings::settle);
}

void HomeSection::setHome(const std::optional<Coordinate>& position, Settings::Settled settled)
{
    SettingsDraft draft = m_settings.draft();
    draft.place = position;
    m_settings.choose(draft, settled);
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
    m_position->showPosition(draft.place);
    const QString label = toQString(draft.label);
    if (std::exchange(m_label, draft.label) != draft.label) {
        m_name->setText(label);
        m_name->setProblem({});
    }
    m_scope->showCard(HomeScope{.draft = draft}.body(), ScopePalette::fromHex(draft.accentHex).background);
}

} // namespace skyvane
