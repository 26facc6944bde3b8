#pragma once

#include "companion/look/marked_line_edit.h"
#include "companion/position/place_search.h"

#include <QStringListModel>

class QCompleter;

namespace skyvane {

/// An input field for the name of a place, with completion; Enter takes the best match.
class PlaceField : public MarkedLineEdit {
    Q_OBJECT
public:
    PlaceField(PlaceSearch::Load load, QLabel& note, QWidget* parent = nullptr);

    /// The titles of the places on offer.
    const QStringListModel& offered() const { return m_titles; }

signals:
    void chosen(const skyvane::Place& place);

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    void offer(const QString& typed, const std::vector<Place>& places);
    void unfold();
    void chooseCurrent();
    void choose(int row);

    PlaceSearch m_search;
    std::vector<Place> m_places; ///< The places on offer, best first.
    QString m_answered; ///< What had been typed when they were looked up.
    bool m_isBestWanted = false; ///< Enter was pressed: the best place is chosen when the answer comes.
    QStringListModel m_titles;
    QCompleter* m_completer;
};

} // namespace skyvane
