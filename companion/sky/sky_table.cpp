#include "companion/sky/sky_table.h"

#include "companion/sky/aircraft_delegate.h"
#include "companion/sky/cell_delegate.h"
#include "companion/sky/column_width.h"
#include "companion/sky/flat_header.h"
#include "companion/sky/sky_cells.h"
#include "companion/sky/star_delegate.h"
#include "desk/text.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
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
    setUpActions();
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.column() != column(SkyColumn::star))
            activate(index);
    });
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) {
        if (index.column() == column(SkyColumn::star))
            toggleStar(index);
    });
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
        [this] { emit aircraftSelected(selectedHex()); });
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&m_filter, signal, this, &SkyTable::rowsChanged);
    connect(&m_filter, &QAbstractItemModel::modelReset, this, &SkyTable::rowsChanged);
}

/// In the menu of a row, and by keyboard.
void SkyTable::setUpActions()
{
    auto* open = new QAction{localizedText("Open"), this};
    connect(open, &QAction::triggered, this, [this] { activate(currentIndex()); });
    auto* copy = new QAction{localizedText("Copy"), this};
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &SkyTable::copy);
    addActions({open, copy});
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void SkyTable::setUpColumns()
{
    const QFontMetrics metrics{font()};
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(metrics.height() * 2);
    QHeaderView* header = horizontalHeader();
    header->setMinimumSectionSize(metrics.averageCharWidth() * 6);
    header->setFixedHeight(metrics.height() * 2);
    header->setSectionResizeMode(QHeaderView::Fixed);
    for (int index = 0; index < m_filter.columnCount(); ++index)
        setColumnWidth(index, usualWidth(static_cast<SkyColumn>(index), font()));
    fitColumns();
}

/// Narrow, the list does without the operators, then without the climb, at last without the models. What is
/// left over goes to the longer texts.
void SkyTable::fitColumns()
{
    const auto widthOf = [&](SkyColumn name) { return usualWidth(name, font()); };
    QHeaderView* header = horizontalHeader();
    int room = viewport()->width();
    for (const SkyColumn always :
        {SkyColumn::name, SkyColumn::distance, SkyColumn::altitude, SkyColumn::star})
        room -= widthOf(always);
    for (const SkyColumn dispensable : {SkyColumn::model, SkyColumn::climb, SkyColumn::operatorName}) {
        room -= widthOf(dispensable);
        setColumnHidden(column(dispensable), room < 0);
    }
    const bool hasModels = !isColumnHidden(column(SkyColumn::model));
    header->setSectionResizeMode(
        column(SkyColumn::name), hasModels ? QHeaderView::Fixed : QHeaderView::Stretch);
    if (hasModels) // As narrow as it may have been stretched before.
        setColumnWidth(column(SkyColumn::name), widthOf(SkyColumn::name));
    for (const SkyColumn flexible : {SkyColumn::model, SkyColumn::operatorName})
        header->setSectionResizeMode(column(flexible), QHeaderView::Stretch);
}

void SkyTable::showEntry(const SkyEntry& entry, Measures measures)
{
    m_model.show(entry.aircraft, {.distance = entry.unit, .measures = measures}, entry.palette());
}

void SkyTable::setWords(const QString& words)
{
    m_filter.setWords(words);
}

std::vector<Aircraft> SkyTable::shownAircraft() const
{
    const std::vector<Aircraft>& all = m_model.aircraft();
    std::vector<Aircraft> shown;
    for (std::size_t row = 0; row < all.size(); ++row) {
        if (m_filter.mapFromSource(m_model.index(static_cast<int>(row), 0)).isValid())
            shown.push_back(all[row]);
    }
    return shown;
}

void SkyTable::select(const QString& hex)
{
    const QModelIndexList found = hex.isEmpty()
        ? QModelIndexList{}
        : m_filter.match(m_filter.index(0, 0), SkyModel::HexRole, hex, 1, Qt::MatchExactly);
    if (found.isEmpty()) {
        clearSelection();
        return;
    }
    selectRow(found.front().row());
    scrollTo(found.front());
}

QString SkyTable::selectedHex() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? QString{} : rows.front().data(SkyModel::HexRole).toString();
}

/// The selected row's texts, with tabs between them as programs for tables take them.
void SkyTable::copy() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    if (rows.isEmpty())
        return;
    QStringList texts;
    for (int index = 0; index < column(SkyColumn::star); ++index)
        texts += rows.front().siblingAtColumn(index).data().toString();
    QGuiApplication::clipboard()->setText(texts.join(QLatin1Char{'\t'}));
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

void SkyTable::resizeEvent(QResizeEvent* event)
{
    fitColumns();
    QTableView::resizeEvent(event);
}

void SkyTable::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        setUpColumns();
}

} // namespace skyvane
