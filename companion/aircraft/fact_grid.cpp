#include "companion/aircraft/fact_grid.h"

#include "companion/look/type_scale.h"

#include <QGridLayout>
#include <QLabel>

namespace skyvane {

namespace {

constexpr int columns = 3;

} // namespace

FactGrid::FactGrid(QWidget* parent) : QWidget(parent), m_grid(new QGridLayout{this})
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(24);
    m_grid->setVerticalSpacing(2);
    for (int column = 0; column < columns; ++column)
        m_grid->setColumnStretch(column, 1);
}

void FactGrid::showFacts(const std::vector<AircraftWords::Fact>& facts)
{
    while (m_cells.size() < facts.size())
        addCell();
    for (std::size_t place = 0; place < m_cells.size(); ++place) {
        const auto& [name, value] = m_cells[place];
        const bool isFilled = place < facts.size();
        name->setText(isFilled ? facts[place].name : QString{});
        value->setText(isFilled ? facts[place].value : QString{});
        value->setAccessibleName(
            isFilled ? facts[place].name + QStringLiteral(": ") + facts[place].value : QString{});
        name->setVisible(isFilled);
        value->setVisible(isFilled);
    }
}

void FactGrid::addCell()
{
    const Cell cell{.name = new QLabel, .value = new QLabel};
    cell.name->setFont(TypeScale::small(font()));
    TypeScale::makeQuiet(*cell.name);
    cell.value->setFont(TypeScale::strong(font()));
    cell.value->setTextFormat(Qt::PlainText);
    cell.value->setWordWrap(true);
    cell.value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    cell.value->setContentsMargins(0, 0, 0, 12);
    const int place = static_cast<int>(m_cells.size());
    const int row = place / columns * 2;
    m_grid->addWidget(cell.name, row, place % columns);
    m_grid->addWidget(cell.value, row + 1, place % columns);
    m_cells.push_back(cell);
}

} // namespace skyvane
