#pragma once

#include "companion/look/marked_line_edit.h"
#include "companion/position/place_search.h"

#include <QStringListModel>

class QCompleter;

namespace skyvane {

/// A line in which one types the name of a place and chooses from what fits; Enter takes the best.
class PlaceField : public MarkedLineEdit {
    Q_OBJECT
public:
    PlaceField(PlaceSearch::Load load, QLabel& note, QWidget* parent = nullptr);

    /// The words below the line of choices.
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
    std::vector<Place> m_places; ///< As offered.
    QString m_answered; ///< What they answer.
    bool m_isBestWanted = false; ///< As soon as there is an answer.
    QStringListModel m_titles;
    QCompleter* m_completer;
};

} // namespace skyvane
