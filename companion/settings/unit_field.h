#pragma once

#include "companion/settings/choice_row.h"

#include <optional>
#include <string>

namespace skyvane {

/// Miles, kilometres or nautical miles.
class UnitField : public ChoiceRow {
    Q_OBJECT
public:
    explicit UnitField(QWidget* parent = nullptr);

    /// An absent unit, and any word that names none of the three, means miles.
    void showUnit(const std::optional<std::string>& unit);

signals:
    void chosen(const std::string& unit);
};

} // namespace skyvane
