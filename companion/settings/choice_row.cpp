#include "companion/settings/choice_row.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QRadioButton>

namespace skyvane {

ChoiceRow::ChoiceRow(const QStringList& names, QWidget* parent)
    : QWidget(parent), m_buttons(new QButtonGroup{this})
{
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins({});
    row->setSpacing(20);
    int id = 0;
    for (const QString& name : names) {
        auto* button = new QRadioButton{name};
        m_buttons->addButton(button, id++);
        row->addWidget(button);
    }
    row->addStretch();
    connect(m_buttons, &QButtonGroup::idClicked, this, &ChoiceRow::placeChosen);
}

void ChoiceRow::showChoice(int place)
{
    m_buttons->button(place)->setChecked(true);
}

} // namespace skyvane
