#include "companion/alerts/alerts_page.h"

#include "companion/alerts/quiet_field.h"
#include "companion/alerts/watch_field.h"
#include "companion/look/scrolling.h"
#include "companion/look/type_scale.h"
#include "desk/text.h"

#include <QAccessible>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <utility>

namespace skyvane {

namespace {

constexpr int pageMargin = 20;
constexpr int sectionGap = 24;

QLabel* words(const QString& text)
{
    auto* label = new QLabel{text};
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    TypeScale::makeQuiet(*label);
    return label;
}

void addSection(QVBoxLayout& column, const QString& title, QWidget* field, const QString& note)
{
    auto* label = new QLabel{title};
    label->setFont(TypeScale::title(label->font()));
    label->setBuddy(field);
    column.addSpacing(sectionGap - column.spacing());
    column.addWidget(label);
    column.addWidget(words(note));
    column.addWidget(field);
}

} // namespace

AlertsPage::AlertsPage(AlertStore& store, std::function<void()> showSample, QWidget* parent)
    : QWidget(parent)
    , m_store(store)
    , m_emergency(new QCheckBox{localizedText("an aircraft reports an &emergency")})
    , m_military(new QCheckBox{localizedText("a &military aircraft is in range")})
    , m_overhead(new QCheckBox{localizedText("an aircraft will pass &overhead,")})
    , m_elevation(new QSpinBox)
    , m_watch(new WatchField)
    , m_quiet(new QuietField)
    , m_state(new QLabel)
{
    m_state->setTextFormat(Qt::PlainText);
    m_state->setWordWrap(true);
    layOut(showSample);
    setFocusProxy(m_emergency);
    connectFields();
    showChoices();
}

void AlertsPage::layOut(const std::function<void()>& showSample)
{
    auto* sample = new QPushButton{localizedText("Show a &Sample")};
    connect(sample, &QPushButton::clicked, this, showSample);
    auto* content = new QWidget;
    constexpr int widest = 42; // Lines' heights, so that it grows with the user's letters.
    content->setMaximumWidth(widest * fontMetrics().lineSpacing());
    auto* column = new QVBoxLayout{content};
    column->setContentsMargins(pageMargin, pageMargin, pageMargin, pageMargin);
    column->setSpacing(10);
    column->addWidget(
        words(localizedText("A notification tells you, while your widgets are on the desktop. Nobody is "
                            "asked for anything more.")));
    column->addWidget(m_emergency);
    column->addWidget(m_military);
    column->addWidget(overheadRow());
    addSection(*column, localizedText("&Watch list"), m_watch,
        localizedText("Tell me when one of these is in range: callsigns, registrations, types or addresses; "
                      "* stands for "
                      "anything. The star of an aircraft adds it."));
    addSection(*column, localizedText("Quiet hours"), m_quiet,
        localizedText("Nothing is told while the screen is locked or notifications are off, either."));
    column->addSpacing(sectionGap);
    column->addWidget(sample, 0, Qt::AlignLeft);
    column->addWidget(m_state);
    column->addStretch();
    fillScrolling(*this, content);
}

QWidget* AlertsPage::overheadRow()
{
    m_elevation->setRange(AlertChoices::lowest, AlertChoices::highest);
    m_elevation->setSuffix(QStringLiteral("°"));
    m_elevation->setAccessibleName(localizedText("Degrees over the horizon"));
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout{row};
    layout->setContentsMargins({});
    layout->addWidget(m_overhead);
    layout->addWidget(new QLabel{localizedText("at least")});
    layout->addWidget(m_elevation);
    layout->addWidget(new QLabel{localizedText("over the horizon")});
    layout->addStretch();
    return row;
}

void AlertsPage::connectFields()
{
    connect(m_emergency, &QCheckBox::clicked, this,
        [this](bool isOn) { choose([&](AlertChoices& choices) { choices.emergency = isOn; }); });
    connect(m_military, &QCheckBox::clicked, this,
        [this](bool isOn) { choose([&](AlertChoices& choices) { choices.military = isOn; }); });
    connect(m_overhead, &QCheckBox::clicked, this,
        [this](bool isOn) { choose([&](AlertChoices& choices) { choices.overhead = isOn; }); });
    connect(m_elevation, &QSpinBox::valueChanged, this,
        [this](int degrees) { choose([&](AlertChoices& choices) { choices.elevation = degrees; }); });
    connect(m_watch, &WatchField::chosen, this, [this](const std::vector<std::string>& patterns) {
        choose([&](AlertChoices& choices) { choices.watch = patterns; });
    });
    connect(m_quiet, &QuietField::chosen, this, [this](bool isQuiet, const QuietHours& hours) {
        choose([&](AlertChoices& choices) {
            choices.isQuiet = isQuiet;
            choices.quietHours = hours;
        });
    });
    connect(&m_store, &AlertStore::changed, this, &AlertsPage::showChoices);
    connect(&m_store, &AlertStore::written, this, [this] { showState(localizedText("Saved.")); });
    connect(&m_store, &AlertStore::failedToWrite, this, [this] {
        showState(localizedText("Your choices could not be saved. Nothing can be written to this folder: %1",
            {m_store.file().parent_path().string()}));
    });
}

void AlertsPage::choose(const std::function<void(AlertChoices&)>& change)
{
    AlertChoices choices = m_store.choices();
    change(choices);
    m_store.choose(choices);
}

void AlertsPage::showChoices()
{
    const AlertChoices& choices = m_store.choices();
    m_emergency->setChecked(choices.emergency);
    m_military->setChecked(choices.military);
    m_overhead->setChecked(choices.overhead);
    m_elevation->setValue(choices.elevation);
    m_elevation->setEnabled(choices.overhead);
    m_watch->show(choices.watch);
    m_quiet->show(choices.isQuiet, choices.quietHours);
}

/// A screen reader hears it too, though the focus is elsewhere.
void AlertsPage::showState(const QString& state)
{
    m_state->setText(state);
    QAccessibleEvent event{m_state, QAccessible::Alert};
    QAccessible::updateAccessibility(&event);
}

} // namespace skyvane
