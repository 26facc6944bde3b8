#include "companion/position/position_field.h"

#include "companion/position/coordinates.h"
#include "companion/position/language.h"
#include "desk/text.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScopedValueRollback>

#include <utility>

namespace skyvane {

namespace {

using namespace std::chrono_literals;

QString words(Coordinates::Problem problem)
{
    switch (problem) {
    case Coordinates::Problem::unreadable:
        return localizedText(
            "This is no position. Write one as 51.4775, -0.4614 or as 51°28′39″N 0°27′41″W.");
    case Coordinates::Problem::ambiguous:
        return localizedText("Put a semicolon between latitude and longitude.");
    case Coordinates::Problem::eastOrWest:
        return localizedText("The letter O is east in German, and west in French and Spanish. Write E or W.");
    case Coordinates::Problem::shortCode:
        return localizedText(
            "This plus code lacks its beginning. Write it with its town into the line above.");
    case Coordinates::Problem::shortLink:
        return localizedText("Only its site knows where this short link leads. Open it and copy the long one "
                             "that appears then.");
    case Coordinates::Problem::linkWithoutPosition:
        return localizedText("This link has no position in it.");
    case Coordinates::Problem::outOfRange:
        break;
    }
    return localizedText("Latitude goes from −90 to 90, longitude from −180 to 180.");
}

QString words(LocationService::Failure failure)
{
    switch (failure) {
    case LocationService::Failure::notRunning:
        return localizedText("The location service of your system is not running.");
    case LocationService::Failure::denied:
        return localizedText(
            "Your system does not let Skyvane know where you are. Its privacy settings may allow it.");
    case LocationService::Failure::noFixInTime:
        return localizedText("The location service of your system found no position in time.");
    case LocationService::Failure::other:
        break;
    }
    return localizedText("The location service of your system could not tell where you are.");
}

Coordinates::Reading reading(const QLineEdit& line)
{
    return Coordinates::read(line.text().toStdString(), Language::own());
}

} // namespace

PositionField::PositionField(const QDBusConnection& bus, QLabel& note, QWidget* parent)
    : QWidget(parent), m_service(bus), m_line(new MarkedLineEdit{note}), m_button(new QPushButton)
{
    m_line->setPlaceholderText(localizedText("Latitude, longitude"));
    m_line->setAccessibleName(localizedText("Position"));
    setFocusProxy(m_line);
    showAsking(false);
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins({});
    row->addWidget(m_line, 1);
    row->addWidget(m_button);

    m_pause.setSingleShot(true);
    m_pause.setInterval(700ms);
    m_pause.callOnTimeout(this, &PositionField::mark);
    connect(m_line, &QLineEdit::textEdited, this, &PositionField::read);
    connect(m_line, &QLineEdit::editingFinished, this, [this] {
        mark();
        emit finished();
    });
    connect(m_button, &QPushButton::clicked, this, &PositionField::askOrCancel);
    connect(&m_service, &LocationService::improving, this, &PositionField::improving);
    connect(&m_service, &LocationService::located, this, [this](const LocationFix& fix) {
        showAsking(false);
        emit located({.position = Coordinates::rounded(fix.position), .accuracy = fix.accuracy});
    });
    connect(&m_service, &LocationService::failed, this, [this](LocationService::Failure failure) {
        showAsking(false);
        m_line->setRemark({});
        m_line->setProblem(words(failure));
    });
}

void PositionField::showPosition(const std::optional<Coordinate>& position)
{
    if (std::exchange(m_position, position) == position || m_isReading)
        return;
    if (position && reading(*m_line) == Coordinates::Reading{*position})
        return;
    m_pause.stop();
    m_line->setText(position ? toQString(Coordinates::text(*position)) : QString{});
    m_line->setProblem({});
}

void PositionField::read()
{
    m_service.cancel();
    showAsking(false);
    m_line->setRemark({});
    m_pause.start();
    const auto result = reading(*m_line);
    const auto* position = std::get_if<Coordinate>(&result);
    if (position != nullptr)
        m_line->setProblem({});
    const QScopedValueRollback isReading{m_isReading, true};
    emit typed(position != nullptr ? std::optional{*position} : std::nullopt);
}

void PositionField::mark()
{
    m_pause.stop();
    const auto result = reading(*m_line);
    const auto* problem = std::get_if<Coordinates::Problem>(&result);
    const bool isUntouched = m_line->text().trimmed().isEmpty() && !m_position;
    if (!m_line->isModified())
        return;
    m_line->setProblem(problem != nullptr && !isUntouched ? words(*problem) : QString{});
}

void PositionField::askOrCancel()
{
    const bool isCancelled = m_service.isAsking();
    m_line->setProblem({});
    m_line->setRemark(isCancelled ? QString{} : localizedText("Asking where you are…"));
    showAsking(!isCancelled);
    if (isCancelled)
        m_service.cancel();
    else
        m_service.ask();
}

void PositionField::showAsking(bool isAsking)
{
    m_button->setText(isAsking ? localizedText("&Stop Asking") : localizedText("&Locate Me"));
}

} // namespace skyvane
