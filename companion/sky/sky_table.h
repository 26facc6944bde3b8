#pragma once

#include "companion/sky/sky_filter.h"
#include "companion/sky/sky_model.h"
#include "core/views/sky_entry.h"

#include <QTableView>

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

signals:
    /// Enter was pressed on the aircraft's row, or the row double-clicked.
    void aircraftActivated(const QString& hex);
    /// The star of the aircraft's row was clicked, or Ctrl+D pressed on the row.
    void starToggled(const QString& hex);
    /// Other rows are visible than before.
    void rowsChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setUpColumns();
    void activate(const QModelIndex& index);
    void toggleStar(const QModelIndex& index);

    SkyModel m_model;
    SkyFilter m_filter;
};

} // namespace skyvane
