#pragma once

#include "companion/aircraft/aircraft_words.h"

#include <QWidget>

#include <vector>

class QGridLayout;
class QLabel;

namespace skyvane {

/// Facts in rows of three, each one's name above it.
class FactGrid : public QWidget {
    Q_OBJECT
public:
    explicit FactGrid(QWidget* parent = nullptr);

    void showFacts(const std::vector<AircraftWords::Fact>& facts);

private:
    struct Cell {
        QLabel* name;
        QLabel* value;
    };

    void addCell();

    QGridLayout* m_grid;
    std::vector<Cell> m_cells;
};

} // namespace skyvane
