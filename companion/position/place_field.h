#pragma once

#include "companion/look/marked_line_edit.h"
#include "companion/position/grid_code.h"
#include "companion/position/place_search.h"

#include <QStringListModel>

class QCompleter;

namespace skyvane {

/// An input field for the name of a place, with completion; Enter takes the best match. A position, or a plus
/// code with its town, is taken as well. What is left without a choice goes.
class PlaceField : public MarkedLineEdit {
    Q_OBJECT
public:
    PlaceField(PlaceSearch::Load load, QLabel& note, QWidget* parent = nullptr);

    /// The titles of the places on offer.
    const QStringListModel& offered() const { return m_titles; }

    PlaceSearch& search() { return m_search; }

    /// Empties the line: home is none of its places any more. `remark`: where it is instead.
    void clearChoice(const QString& remark);

signals:
    void chosen(const skyvane::Place& place);
    void positionChosen(const skyvane::Coordinate& position);

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    void ask(const QString& typed);
    void take(const std::vector<Place>& places);
    void offer(const std::vector<Place>& places);
    void unfold();
    void chooseCurrent();
    void choose(int row);
    void leave();

    PlaceSearch m_search;
    std::vector<Place> m_places; ///< The places on offer, best first.
    QString m_asked; ///< What had been typed when they were last looked up.
    QString m_answered; ///< What had been typed for those on offer.
    QString m_choice; ///< The title of the place that was chosen; empty: none.
    std::optional<GridCode::ShortCode> m_code; ///< Whose town is looked up.
    bool m_isBestWanted = false; ///< Enter was pressed: the best place is chosen when the answer comes.
    QStringListModel m_titles;
    QCompleter* m_completer;
};

} // namespace skyvane
