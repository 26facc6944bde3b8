#pragma once

#include <QWidget>

#include <optional>
#include <string>

class QButtonGroup;

namespace skyvane {

/// Miles, kilometres or nautical miles.
class UnitField : public QWidget {
    Q_OBJECT
public:
    explicit UnitField(QWidget* parent = nullptr);

    /// An absent unit, and any word that names none of the three, means miles.
    void showUnit(const std::optional<std::string>& unit);

signals:
    void chosen(const std::string& unit);

private:
    QButtonGroup* m_units;
};

} // namespace skyvane
