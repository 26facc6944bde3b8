#pragma once

#include "companion/sky/sky_filter.h"
#include "companion/sky/sky_model.h"
#include "core/views/sky_entry.h"

#include <QTableView>

#include <vector>

namespace skyvane {

/// The list of the sky, to be ordered by a click on a column's head.
class SkyTable : public QTableView {
    Q_OBJECT
public:
    explicit SkyTable(QWidget* parent = nullptr);

    void showEntry(const SkyEntry& entry, Measures measures);
    void setWatchList(const std::vector<std::string>& patterns) { m_model.setWatchList(patterns); }
    void setWords(const QString& words);
    int rowCount() const { return m_filter.rowCount(); }

    /// Those that the filter lets through, the nearest first.
    std::vector<Aircraft> shownAircraft() const;

    /// Selects the aircraft's row and scrolls to it; an empty text, or one that is not listed, selects none.
    void select(const QString& hex);
    /// Of the selected row; empty where none is.
    QString selectedHex() const;

signals:
    /// Enter was pressed on the aircraft's row, or the row double-clicked.
    void aircraftActivated(const QString& hex);
    /// The star of the aircraft's row was clicked, or Ctrl+D pressed on the row.
    void starToggled(const QString& hex);
    /// Another row is selected; an empty text: none.
    void aircraftSelected(const QString& hex);
    /// Other rows are visible than before.
    void rowsChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setUpColumns();
    void fitColumns();
    void setUpActions();
    void activate(const QModelIndex& index);
    void toggleStar(const QModelIndex& index);
    void copy() const;

    SkyModel m_model;
    SkyFilter m_filter;
};

} // namespace skyvane
