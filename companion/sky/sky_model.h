#pragma once

#include "companion/look/measures.h"
#include "core/config/scope_palette.h"
#include "core/model/aircraft.h"

#include <QAbstractTableModel>

#include <vector>

namespace skyvane {

/// The aircraft of the sky, one a row.
class SkyModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Role {
        SortRole = Qt::UserRole, ///< A number or a text; invalid where nothing is known.
        FilterRole, ///< All texts by which an aircraft may be looked for.
        HexRole,
        TrackRole, ///< Degrees; invalid where it is not known.
        BadgeRole, ///< What sets the aircraft apart, in a word; empty: nothing.
        BlipRole, ///< The colour that it has on the scope.
        StarRole, ///< Whether it is on the watch list.
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// Aircraft that were there before keep their rows' selection and focus.
    void show(std::vector<Aircraft> aircraft, const Units& units, const ScopePalette& palette);

    /// The patterns of the watch list, by which aircraft have their stars.
    void setWatchList(const std::vector<std::string>& patterns);

    /// One a row.
    const std::vector<Aircraft>& aircraft() const { return m_aircraft; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QVariant starData(const Aircraft& aircraft, int role) const;
    void follow(std::vector<Aircraft> aircraft);
    void removeGone(const std::vector<Aircraft>& now);
    void appendNew(const std::vector<Aircraft>& now);
    void bringIntoOrder(std::vector<Aircraft> now);

    std::vector<Aircraft> m_aircraft;
    Units m_units;
    ScopePalette m_palette = ScopePalette::standard();
    std::vector<std::string> m_watch;
};

} // namespace skyvane
