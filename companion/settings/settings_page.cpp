#include "companion/settings/settings_page.h"

#include "companion/look/marked_line_edit.h"
#include "companion/look/scrolling.h"
#include "companion/look/type_scale.h"
#include "companion/position/world_places.h"
#include "companion/settings/choice_row.h"
#include "companion/settings/color_field.h"
#include "companion/settings/home_section.h"
#include "companion/settings/radius_field.h"
#include "companion/settings/unit_field.h"
#include "companion/settings/widget_previews.h"
#include "core/model/distance_unit.h"
#include "desk/text.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>

namespace skyvane {

namespace {

constexpr int pageMargin = 28;
constexpr int columnGap = 40;
constexpr int sectionGap = 26;

using Settled = Settings::Settled;

QLabel* quietLabel()
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    TypeScale::makeQuiet(*label);
    return label;
}

/// As `Measures` has them.
QStringList measuresNames()
{
    return {localizedText("Feet, knots"), localizedText("Metres, km/h"), localizedText("Feet, mph")};
}

} // namespace

SettingsPage::SettingsPage(
    const FontMeasurer& fonts, const QDBusConnection& systemBus, Preferences& preferences, QWidget* parent)
    : SettingsPage(fonts, systemBus, preferences,
        {.loadPlaces = {&WorldPlaces::load, &WorldPlaces::loadWithAllNames}}, parent)
{
}

SettingsPage::SettingsPage(const FontMeasurer& fonts, const QDBusConnection& systemBus,
    Preferences& preferences, const Surroundings& surroundings, QWidget* parent)
    : QWidget(parent)
    , m_settings(surroundings.pace)
    , m_preferences(preferences)
    , m_greeting(quietLabel())
    , m_radiusNote(makeNote())
    , m_radius(new RadiusField{*m_radiusNote})
    , m_unit(new UnitField)
    , m_measures(new ChoiceRow{measuresNames()})
    , m_color(new ColorField)
    , m_state(quietLabel())
    , m_forget(new QPushButton{localizedText("&Forget My Home…")})
    , m_previews(new WidgetPreviews{fonts})
{
    auto* home = new HomeSection{m_settings, surroundings.loadPlaces, systemBus};
    auto* content = new QWidget;
    m_columns = new QBoxLayout{QBoxLayout::LeftToRight, content};
    m_columns->setContentsMargins(pageMargin, pageMargin, pageMargin, pageMargin);
    m_columns->setSpacing(columnGap);
    m_chosen = choices(home);
    m_columns->addWidget(m_chosen, 1, Qt::AlignTop);
    m_columns->addWidget(m_previews, 0, Qt::AlignTop);
    arrange();
    fillScrolling(*this, content);
    setFocusProxy(home);
    connectFields();
    showDraft();
}

QWidget* SettingsPage::choices(QWidget* home)
{
    auto* widget = new QWidget;
    widget->setMaximumWidth(620);
    auto* column = new QVBoxLayout{widget};
    column->setContentsMargins({});
    column->setSpacing(10);
    column->addWidget(m_greeting);
    addSection(*column, localizedText("Home"), home);
    addSection(*column, localizedText("&Radius"), m_radius, m_radiusNote);
    addSection(*column, localizedText("Distances in"), m_unit);
    addSection(*column, localizedText("Altitude and speed in the companion"), m_measures);
    addSection(*column, localizedText("&Colour"), m_color);
    column->addStretch(1);
    column->addWidget(closing());
    return widget;
}

void SettingsPage::addSection(QVBoxLayout& column, const QString& title, QWidget* field, QLabel* note)
{
    auto* label = new QLabel{title};
    label->setFont(TypeScale::title(label->font()));
    label->setBuddy(field);
    column.addSpacing(sectionGap - column.spacing());
    column.addWidget(label);
    column.addWidget(field);
    if (note != nullptr)
        column.addWidget(note);
}

QWidget* SettingsPage::closing()
{
    auto* widget = new QWidget;
    auto* row = new QHBoxLayout{widget};
    row->setContentsMargins(0, sectionGap, 0, 0);
    row->setSpacing(20);
    row->addWidget(m_state, 1);
    row->addWidget(m_forget, 0, Qt::AlignBottom);
    return widget;
}

void SettingsPage::arrange()
{
    constexpr int widthForColumns = 960;
    const bool isWide = width() >= widthForColumns;
    m_columns->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_chosen->setMinimumHeight(isWide ? m_previews->sizeHint().height() : 0);
}

void SettingsPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void SettingsPage::connectFields()
{
    connect(m_radius, &RadiusField::typed, this, [this](std::optional<double> radiusNM) {
        const double chosen = radiusNM.value_or(m_settings.saved().radiusNM);
        choose([&](SettingsDraft& draft) { draft.radiusNM = chosen; }, Settled::afterTyping);
    });
    connect(m_radius, &RadiusField::slid, this, [this](double radiusNM) {
        choose([&](SettingsDraft& draft) { draft.radiusNM = radiusNM; },
            m_radius->slider().isSliderDown() ? Settled::whenTold : Settled::soon);
    });
    connect(m_radius, &RadiusField::finished, &m_settings, &Settings::settle);
    connect(m_unit, &UnitField::chosen, this, [this](const std::string& unit) {
        choose([&](SettingsDraft& draft) { draft.unit = unit; }, Settled::soon);
    });
    connect(m_measures, &ChoiceRow::placeChosen, this,
        [this](int place) { m_preferences.choose(static_cast<Measures>(place)); });
    connect(m_color, &ColorField::chosen, this, [this](const std::optional<std::string>& hex) {
        choose([&](SettingsDraft& draft) { draft.accentHex = hex; }, Settled::soon);
    });
    connect(m_color, &ColorField::tried, this, [this](const std::string& hex) {
        choose([&](SettingsDraft& draft) { draft.accentHex = hex; }, Settled::whenTold);
    });
    connect(m_forget, &QPushButton::clicked, this, &SettingsPage::askToForget);
    connect(&m_settings, &Settings::draftChanged, this, &SettingsPage::showDraft);
    connect(&m_settings, &Settings::written, this, [this] {
        showState(m_settings.draft().place ? localizedText("Saved. Your widgets show it within a moment.")
                                           : localizedText("Your home is forgotten."));
        emit changed();
    });
    connect(&m_settings, &Settings::failedToWrite, this, [this] {
        showState(localizedText("Your choices could not be saved. Nothing can be written to this folder: %1",
            {SharedState::directory().string()}));
    });
}

void SettingsPage::choose(const std::function<void(SettingsDraft&)>& change, Settled settled)
{
    SettingsDraft draft = m_settings.draft();
    change(draft);
    m_settings.choose(draft, settled);
}

void SettingsPage::showDraft()
{
    const SettingsDraft& draft = m_settings.draft();
    m_greeting->setText(draft.place
            ? localizedText("What you choose here is saved at once, and your widgets follow.")
            : localizedText(
                "Welcome! Tell Skyvane where you live, and the sky above it comes to your desktop."));
    m_radius->showRadius(draft.radiusNM, draft.unit.value_or(DistanceUnit::standard));
    m_unit->showUnit(draft.unit);
    m_measures->showChoice(static_cast<int>(m_preferences.measures()));
    m_color->showColor(draft.accentHex);
    m_forget->setEnabled(draft.place.has_value());
    m_previews->showDraft(draft);
}

void SettingsPage::showSky(const SkyEntry& own)
{
    m_previews->showSky(own);
}

/// A screen reader hears it too, though the focus is elsewhere.
void SettingsPage::showState(const QString& state)
{
    m_state->setText(state);
    QAccessibleEvent event{m_state, QAccessible::Alert};
    QAccessible::updateAccessibility(&event);
}

void SettingsPage::askToForget()
{
    auto* question = new QMessageBox{QMessageBox::Question, localizedText("Forget My Home"),
        localizedText("Forget your home? Your widgets stay empty until you choose one again."),
        QMessageBox::NoButton, this};
    question->setAttribute(Qt::WA_DeleteOnClose);
    const auto* forget = question->addButton(localizedText("&Forget"), QMessageBox::DestructiveRole);
    question->setDefaultButton(question->addButton(QMessageBox::Cancel));
    connect(question, &QMessageBox::buttonClicked, this, [this, forget](const QAbstractButton* button) {
        if (button == forget)
            m_settings.forgetHome();
    });
    question->open();
}

/// What is chosen and not written yet must not wait for the page to be seen again.
void SettingsPage::hideEvent(QHideEvent* event)
{
    m_settings.settle();
    QWidget::hideEvent(event);
}

} // namespace skyvane
