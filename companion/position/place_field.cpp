#include "companion/position/place_field.h"

#include "desk/text.h"

#include <QAbstractItemView>
#include <QCompleter>

#include <utility>

namespace skyvane {

PlaceField::PlaceField(PlaceSearch::Load load, QLabel& note, QWidget* parent)
    : MarkedLineEdit(note, parent), m_search(std::move(load)), m_completer(new QCompleter{&m_titles, this})
{
    setPlaceholderText(localizedText("City or airport"));
    setClearButtonEnabled(true);
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setWidget(this);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& typed) {
        m_isBestWanted = false;
        m_search.ask(typed);
    });
    connect(&m_search, &PlaceSearch::answered, this, &PlaceField::offer);
    connect(this, &QLineEdit::returnPressed, this, &PlaceField::chooseCurrent);
    connect(m_completer, qOverload<const QModelIndex&>(&QCompleter::activated), this,
        [this](const QModelIndex& index) { choose(index.row()); });
}

void PlaceField::focusInEvent(QFocusEvent* event)
{
    m_search.prepare();
    MarkedLineEdit::focusInEvent(event);
}

void PlaceField::offer(const QString& typed, const std::vector<Place>& places)
{
    if (typed != text())
        return;
    m_places = places;
    m_answered = typed;
    QStringList titles;
    for (const Place& place : places)
        titles += toQString(place.title());
    m_titles.setStringList(titles);
    const bool isUnknown = places.empty() && !typed.trimmed().isEmpty();
    setProblem(isUnknown ? localizedText("No place of this name is known here. A position works everywhere.")
                         : QString{});
    if (places.empty()) {
        m_completer->popup()->hide();
        return;
    }
    if (m_isBestWanted)
        choose(0);
    else if (hasFocus())
        unfold();
}

void PlaceField::unfold()
{
    m_completer->complete();
    m_completer->popup()->setCurrentIndex(m_completer->completionModel()->index(0, 0));
}

/// Whoever types faster than the places are loaded gets the best of them then.
void PlaceField::chooseCurrent()
{
    m_isBestWanted = m_answered != text();
    if (m_isBestWanted)
        return;
    const QAbstractItemView& list = *m_completer->popup();
    choose(list.isVisible() && list.currentIndex().isValid() ? list.currentIndex().row() : 0);
}

void PlaceField::choose(int row)
{
    if (row < 0 || std::cmp_greater_equal(row, m_places.size()))
        return;
    const Place place = m_places[static_cast<std::size_t>(row)];
    m_places.clear();
    m_completer->popup()->hide();
    m_isBestWanted = false;
    m_answered = toQString(place.title());
    setText(m_answered);
    emit chosen(place);
}

} // namespace skyvane
