#include "companion/sky/sky_model.h"

#include "companion/alerts/star.h"
#include "companion/sky/sky_cells.h"
#include "desk/text.h"
#include "paint/to_qt.h"

#include <QColor>

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace skyvane {

namespace {

constexpr int columns = 7;

using Rows = std::unordered_map<std::string_view, std::size_t>;

Rows rowsOf(const std::vector<Aircraft>& aircraft)
{
    Rows rows;
    for (std::size_t row = 0; row < aircraft.size(); ++row)
        rows.try_emplace(aircraft[row].hex, row);
    return rows;
}

/// The first of each identity: a row stands for one aircraft.
std::vector<Aircraft> withoutRepeated(std::vector<Aircraft> aircraft)
{
    std::unordered_set<std::string> seen;
    std::erase_if(aircraft, [&](const Aircraft& one) { return !seen.insert(one.hex).second; });
    return aircraft;
}

bool isFigure(SkyColumn column)
{
    return column == SkyColumn::distance || column == SkyColumn::altitude || column == SkyColumn::climb;
}

Qt::Alignment alignmentOf(SkyColumn column)
{
    return (isFigure(column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

} // namespace

void SkyModel::show(std::vector<Aircraft> aircraft, const Units& units, const ScopePalette& palette)
{
    m_units = units;
    m_palette = palette;
    aircraft = withoutRepeated(std::move(aircraft));
    const Rows now = rowsOf(aircraft);
    const auto kept
        = std::ranges::count_if(m_aircraft, [&](const Aircraft& before) { return now.contains(before.hex); });
    if (static_cast<std::size_t>(kept) * 2 >= std::max(aircraft.size(), m_aircraft.size())) {
        follow(std::move(aircraft));
        return;
    }
    beginResetModel();
    m_aircraft = std::move(aircraft);
    endResetModel();
}

void SkyModel::setWatchList(const std::vector<std::string>& patterns)
{
    m_watch = patterns;
    if (!m_aircraft.empty())
        emit dataChanged(index(0, columns - 1), index(rowCount() - 1, columns - 1));
}

void SkyModel::follow(std::vector<Aircraft> aircraft)
{
    removeGone(aircraft);
    appendNew(aircraft);
    bringIntoOrder(std::move(aircraft));
    if (!m_aircraft.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columns - 1));
}

void SkyModel::removeGone(const std::vector<Aircraft>& now)
{
    const Rows rows = rowsOf(now);
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (rows.contains(m_aircraft[static_cast<std::size_t>(row)].hex))
            continue;
        beginRemoveRows({}, row, row);
        m_aircraft.erase(m_aircraft.begin() + row);
        endRemoveRows();
    }
}

void SkyModel::appendNew(const std::vector<Aircraft>& now)
{
    const Rows rows = rowsOf(m_aircraft);
    std::vector<Aircraft> added;
    for (const Aircraft& aircraft : now) {
        if (!rows.contains(aircraft.hex))
            added.push_back(aircraft);
    }
    if (added.empty())
        return;
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(added.size()) - 1);
    std::ranges::move(added, std::back_inserter(m_aircraft));
    endInsertRows();
}

void SkyModel::bringIntoOrder(std::vector<Aircraft> now)
{
    emit layoutAboutToBeChanged();
    const Rows rows = rowsOf(now);
    QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex& kept : before) {
        const auto row = rows.at(m_aircraft[static_cast<std::size_t>(kept.row())].hex);
        after.push_back(index(static_cast<int>(row), kept.column()));
    }
    m_aircraft = std::move(now);
    changePersistentIndexList(before, after);
    emit layoutChanged();
}

int SkyModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_aircraft.size());
}

int SkyModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant SkyModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Aircraft& aircraft = m_aircraft[static_cast<std::size_t>(index.row())];
    const auto column = static_cast<SkyColumn>(index.column());
    if (column == SkyColumn::star) {
        if (QVariant data = starData(aircraft, role); data.isValid())
            return data;
    }
    switch (role) {
    case Qt::DisplayRole:
        return SkyCells::text(aircraft, column, m_units);
    case Qt::AccessibleTextRole:
        return column == SkyColumn::name ? SkyCells::spokenName(aircraft)
                                         : SkyCells::text(aircraft, column, m_units);
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return SkyCells::summary(aircraft);
    case Qt::TextAlignmentRole:
        return QVariant{alignmentOf(column)};
    case SortRole:
        return SkyCells::sortKey(aircraft, column);
    case FilterRole:
        return SkyCells::searched(aircraft);
    case HexRole:
        return toQString(aircraft.hex);
    case TrackRole:
        return aircraft.track ? QVariant{*aircraft.track} : QVariant{};
    case BadgeRole:
        return SkyCells::badge(aircraft);
    case BlipRole:
        return toQt(aircraft.blipColor(m_palette));
    default:
        return {};
    }
}

/// Invalid where the star's cell is like the others.
QVariant SkyModel::starData(const Aircraft& aircraft, int role) const
{
    const bool isOn = Star::isOn(m_watch, aircraft);
    switch (role) {
    case StarRole:
        return isOn;
    case SortRole:
        return isOn ? 0 : 1;
    case Qt::AccessibleTextRole:
        return isOn ? localizedText("On my watch list") : localizedText("Not on my watch list");
    case Qt::ToolTipRole:
        return isOn ? localizedText("Take it off my watch list") : localizedText("Put it on my watch list");
    default:
        return {};
    }
}

QVariant SkyModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section >= columns)
        return {};
    const auto column = static_cast<SkyColumn>(section);
    if (role == Qt::DisplayRole)
        return SkyCells::title(column);
    if (role == Qt::AccessibleTextRole && column == SkyColumn::star)
        return localizedText("Watch list");
    if (role == Qt::TextAlignmentRole)
        return QVariant{alignmentOf(column)};
    return {};
}

} // namespace skyvane
