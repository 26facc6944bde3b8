#include "companion/position/place_field.h"

#include "companion/position/coordinates.h"
#include "companion/position/language.h"
#include "desk/text.h"

#include <QAbstractItemView>
#include <QCompleter>

#include <utility>

namespace skyvane {

PlaceField::PlaceField(PlaceSearch::Load load, QLabel& note, QWidget* parent)
    : MarkedLineEdit(note, parent), m_search(std::move(load)), m_completer(new QCompleter{&m_titles, this})
{
    setPlaceholderText(localizedText("City, airport code or map link"));
    setClearButtonEnabled(true);
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setWidget(this);
    connect(this, &QLineEdit::textEdited, this, &PlaceField::ask);
    connect(this, &QLineEdit::editingFinished, this, &PlaceField::leave);
    connect(&m_search, &PlaceSearch::answered, this,
        [this](const QString&, const std::vector<Place>& places) { take(places); });
    connect(this, &QLineEdit::returnPressed, this, &PlaceField::chooseCurrent);
    connect(m_completer, qOverload<const QModelIndex&>(&QCompleter::activated), this,
        [this](const QModelIndex& index) { choose(index.row()); });
}

void PlaceField::focusInEvent(QFocusEvent* event)
{
    m_search.prepare();
    MarkedLineEdit::focusInEvent(event);
}

void PlaceField::ask(const QString& typed)
{
    m_isBestWanted = false;
    m_asked = typed;
    m_code.reset();
    const std::string text = typed.toStdString();
    const auto reading = Coordinates::read(text, Language::own());
    if (const auto* position = std::get_if<Coordinate>(&reading)) {
        m_asked.clear();
        offer({{.name = {}, .englishName = {}, .region = {}, .countryCode = {}, .coordinate = *position}});
        return;
    }
    m_code = GridCode::shortCode(text);
    m_search.ask(m_code ? toQString(m_code->town) : typed);
}

void PlaceField::take(const std::vector<Place>& places)
{
    if (m_asked != text())
        return;
    if (!m_code) {
        offer(places);
        return;
    }
    std::vector<Place> squares;
    for (Place place : places) {
        const auto middle = GridCode::middleNear(*m_code, place.coordinate);
        place.coordinate = middle.value_or(place.coordinate);
        if (middle)
            squares.push_back(std::move(place));
    }
    offer(squares);
}

/// A place without a name is a position.
void PlaceField::offer(const std::vector<Place>& places)
{
    m_places = places;
    m_answered = text();
    QStringList titles;
    for (const Place& place : places) {
        const QString title
            = toQString(place.name.empty() ? Coordinates::text(place.coordinate) : place.title());
        titles += m_code ? toQString(m_code->code) + QLatin1Char{' '} + title : title;
    }
    m_titles.setStringList(titles);
    const bool isUnknown = places.empty() && !m_answered.trimmed().isEmpty();
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
    setRemark({});
    if (place.name.empty() || m_code) {
        m_choice = text();
        clearChoice({});
        emit positionChosen(place.coordinate);
        return;
    }
    m_choice = m_answered = toQString(place.title());
    setText(m_choice);
    emit chosen(place);
}

void PlaceField::clearChoice(const QString& remark)
{
    if (text() == std::exchange(m_choice, QString{})) {
        m_answered.clear();
        setText({});
        setProblem({});
    }
    setRemark(remark);
}

/// Half a name says nothing; what was chosen before holds.
void PlaceField::leave()
{
    if (hasFocus() || text() == m_choice || m_isBestWanted)
        return;
    m_places.clear();
    setText(m_choice);
    setProblem({});
}

} // namespace skyvane
