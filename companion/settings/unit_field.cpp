#include "companion/settings/unit_field.h"

#include "desk/text.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QRadioButton>

#include <algorithm>
#include <array>

namespace skyvane {

namespace {

constexpr std::array codes{"mi", "km", "nm"};

std::array<QString, codes.size()> names()
{
    return {localizedText("&Miles"), localizedText("&Kilometres"), localizedText("Na&utical miles")};
}

} // namespace

UnitField::UnitField(QWidget* parent) : QWidget(parent), m_units(new QButtonGroup{this})
{
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins({});
    row->setSpacing(20);
    int id = 0;
    for (const QString& name : names()) {
        auto* button = new QRadioButton{name};
        m_units->addButton(button, id++);
        row->addWidget(button);
    }
    row->addStretch();
    connect(m_units, &QButtonGroup::idClicked, this,
        [this](int clicked) { emit chosen(codes[static_cast<std::size_t>(clicked)]); });
}

void UnitField::showUnit(const std::optional<std::string>& unit)
{
    const auto found = std::find(codes.begin(), codes.end(), unit.value_or(codes.front()));
    m_units->button(found == codes.end() ? 0 : static_cast<int>(found - codes.begin()))->setChecked(true);
}

} // namespace skyvane
