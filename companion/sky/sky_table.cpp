#include "companion/sky/sky_table.h"

#include "companion/sky/aircraft_delegate.h"
#include "companion/sky/cell_delegate.h"
#include "companion/sky/flat_header.h"
#include "companion/sky/sky_cells.h"
#include "companion/sky/star_delegate.h"
#include "desk/text.h"

#include <QKeyEvent>

namespace skyvane {

namespace {

constexpr int column(SkyColumn name)
{
    return static_cast<int>(name);
}

} // namespace

SkyTable::SkyTable(QWidget* parent) : QTableView(parent)
{
    setAccessibleName(localizedText("Aircraft around home, nearest first"));
    setHorizontalHeader(new FlatHeader);
    m_filter.setSourceModel(&m_model);
    setModel(&m_filter);
    setItemDelegate(new CellDelegate{this});
    setItemDelegateForColumn(column(SkyColumn::name), new AircraftDelegate{this});
    setItemDelegateForColumn(column(SkyColumn::star), new StarDelegate{this});
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setFrameShape(NoFrame);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUpColumns();
    setSortingEnabled(true);
    sortByColumn(column(SkyColumn::distance), Qt::AscendingOrder);
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.column() != column(SkyColumn::star))
            activate(index);
    });
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) {
        if (index.column() == column(SkyColumn::star))
            toggleStar(index);
    });
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&m_filter, signal, this, &SkyTable::rowsChanged);
    connect(&m_filter, &QAbstractItemModel::modelReset, this, &SkyTable::rowsChanged);
}

void SkyTable::setUpColumns()
{
    const QFontMetrics metrics{font()};
    const auto wide = [&](const char* widest) {
        return metrics.horizontalAdvance(QString::fromUtf8(widest)) + 2 * CellDelegate::margin;
    };
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(metrics.height() * 2);
    QHeaderView* header = horizontalHeader();
    header->setMinimumSectionSize(metrics.averageCharWidth() * 6);
    header->setFixedHeight(metrics.height() * 2);
    header->setSectionResizeMode(QHeaderView::Fixed);
    for (const SkyColumn flexible : {SkyColumn::model, SkyColumn::operatorName})
        header->setSectionResizeMode(column(flexible), QHeaderView::Stretch);
    setColumnWidth(column(SkyColumn::name), wide("WWWWWWWW Emergency"));
    setColumnWidth(column(SkyColumn::distance), wide("▾  Distance"));
    setColumnWidth(column(SkyColumn::altitude), wide("▾ 00,000 ft"));
    setColumnWidth(column(SkyColumn::climb), wide("↑ 00,000 ft/min"));
    setColumnWidth(column(SkyColumn::star), StarDelegate::size + 2 * CellDelegate::margin);
}

void SkyTable::showEntry(const SkyEntry& entry, Measures measures)
{
    m_model.show(entry.aircraft, {.distance = entry.unit, .measures = measures}, entry.palette());
}

void SkyTable::setWords(const QString& words)
{
    m_filter.setWords(words);
}

void SkyTable::activate(const QModelIndex& index)
{
    if (index.isValid())
        emit aircraftActivated(index.data(SkyModel::HexRole).toString());
}

void SkyTable::toggleStar(const QModelIndex& index)
{
    if (index.isValid())
        emit starToggled(index.data(SkyModel::HexRole).toString());
}

void SkyTable::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_D && event->modifiers() == Qt::ControlModifier)
        toggleStar(currentIndex());
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        activate(currentIndex());
    else
        QTableView::keyPressEvent(event);
}

/// Narrow, the list does without the operators.
void SkyTable::resizeEvent(QResizeEvent* event)
{
    constexpr int widthForOperators = 720;
    setColumnHidden(column(SkyColumn::operatorName), width() < widthForOperators);
    QTableView::resizeEvent(event);
}

void SkyTable::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        setUpColumns();
}

} // namespace skyvane
