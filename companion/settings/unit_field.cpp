#include "companion/settings/unit_field.h"

#include "desk/text.h"

#include <algorithm>
#include <array>

namespace skyvane {

namespace {

constexpr std::array codes{"mi", "km", "nm"};

QStringList names()
{
    return {localizedText("&Miles"), localizedText("&Kilometres"), localizedText("Na&utical miles")};
}

} // namespace

UnitField::UnitField(QWidget* parent) : ChoiceRow(names(), parent)
{
    connect(this, &ChoiceRow::placeChosen, this,
        [this](int place) { emit chosen(codes[static_cast<std::size_t>(place)]); });
}

void UnitField::showUnit(const std::optional<std::string>& unit)
{
    const auto found = std::find(codes.begin(), codes.end(), unit.value_or(codes.front()));
    showChoice(found == codes.end() ? 0 : static_cast<int>(found - codes.begin()));
}

} // namespace skyvane
