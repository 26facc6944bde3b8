#include "companion/alerts/alert_store.h"

#include "companion/alerts/star.h"
#include "desk/alerts/alert_choices_file.h"

#include <utility>

namespace skyvane {

AlertStore::AlertStore(std::filesystem::path file, QObject* parent)
    : QObject(parent)
    , m_file(std::move(file))
    , m_choices(AlertChoicesFile::read(m_file))
    , m_watch(m_file, [this] { look(); })
{
}

void AlertStore::choose(const AlertChoices& choices)
{
    if (choices == m_choices)
        return;
    m_choices = choices;
    const bool isWritten = AlertChoicesFile::write(m_file, m_choices);
    emit changed();
    if (isWritten)
        emit written();
    else
        emit failedToWrite();
}

bool AlertStore::isStarred(const Aircraft& aircraft) const
{
    return Star::isOn(m_choices.watch, aircraft);
}

void AlertStore::toggleStar(const Aircraft& aircraft)
{
    AlertChoices choices = m_choices;
    choices.watch = Star::toggled(std::move(choices.watch), aircraft);
    choose(choices);
}

void AlertStore::look()
{
    if (std::exchange(m_choices, AlertChoicesFile::read(m_file)) != m_choices)
        emit changed();
}

} // namespace skyvane
