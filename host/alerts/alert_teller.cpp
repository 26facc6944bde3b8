#include "host/alerts/alert_teller.h"

#include "desk/alerts/alert_choices_file.h"
#include "desk/bus/names.h"
#include "desk/text.h"
#include "platform/text/printable.h"

#include <QDateTime>

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace skyvane {

namespace {

constexpr qsizetype mostLinks = 100; ///< Of notifications that may still stand.

/// The extension's texts are bounded already; another's need not be.
std::string shown(const std::string& text)
{
    return Unicode::oneLine(text);
}

QTime timeOfDay(Date date)
{
    return QDateTime::fromMSecsSinceEpoch(date.time_since_epoch().count()).time();
}

bool opensCompanion(const std::optional<URL>& url)
{
    return url && url->scheme() == "skyvane";
}

} // namespace

AlertTeller::AlertTeller(AlertSetup setup, QDBusConnection session, const QDBusConnection& system,
    std::function<void()> rulesChanged)
    : m_setup(std::move(setup))
    , m_choices(AlertChoicesFile::read(m_setup.choices))
    , m_watch(m_setup.choices, [this, changed = std::move(rulesChanged)] { readChoices(changed); })
    , m_told(m_setup.told)
    , m_doNotDisturb(session, system)
    , m_notifications(std::move(session), BusName::host())
{
    connect(&m_notifications, &Notifications::activated, this, &AlertTeller::open);
}

/// Only passes overhead are still to come once an answer was taken.
void AlertTeller::readChoices(const std::function<void()>& rulesChanged)
{
    m_choices = AlertChoicesFile::read(m_setup.choices);
    if (!m_choices.overhead)
        take({});
    rulesChanged();
}

void AlertTeller::take(const std::vector<Alert>& alerts)
{
    m_waiting = alerts;
    tellDue();
}

void AlertTeller::tellDue()
{
    const Date now = Clock::now();
    std::erase_if(
        m_waiting, [&](const Alert& alert) { return alert.at + late < now || m_told.has(alert.id, now); });
    const bool isTime = std::ranges::any_of(m_waiting, [&](const Alert& alert) { return alert.at <= now; });
    std::vector<Alert> due;
    if (isTime) {
        const auto isDue = [&](const Alert& alert) { return alert.at <= now + together; };
        std::ranges::copy_if(m_waiting, std::back_inserter(due), isDue);
        std::erase_if(m_waiting, isDue);
    }
    arm();
    if (due.empty() || m_choices.areQuietAt(timeOfDay(now)))
        return;
    m_doNotDisturb.ask([this, due = std::move(due)](bool isOn) {
        if (!isOn)
            tell(due);
    });
}

void AlertTeller::tell(const std::vector<Alert>& due)
{
    const Date now = Clock::now();
    std::vector<Alert> told;
    std::set<std::string> ids;
    for (const Alert& alert : due) {
        if (!m_told.has(alert.id, now) && ids.insert(alert.id).second)
            told.push_back(alert);
    }
    if (told.empty())
        return;
    m_told.add({ids.begin(), ids.end()}, now); // First: told once too seldom is better than twice.
    if (m_links.size() > mostLinks)
        m_links.clear();
    const std::size_t count = std::min(told.size(), mostAtOnce);
    for (std::size_t index = 0; index < count; ++index)
        show(told[index], index + 1 == count ? told.size() - count : 0);
}

void AlertTeller::show(const Alert& alert, std::size_t more)
{
    const QString key = toQString(alert.id);
    QString body = toQString(shown(alert.body));
    if (more > 0)
        body += QLatin1Char{'\n'} + toQString(localizedCount("and %1 more", "and %1 more", more, {more}));
    if (opensCompanion(alert.url))
        m_links.insert(key, *alert.url);
    m_notifications.show({.key = key, .title = toQString(shown(alert.title)), .body = body});
}

void AlertTeller::open(const QString& key, const QString& token)
{
    if (const auto link = m_links.constFind(key); link != m_links.constEnd())
        m_setup.open(*link, token);
}

void AlertTeller::arm()
{
    if (m_waiting.empty() && !m_timer)
        return;
    if (!m_timer)
        m_timer.emplace([this] { tellDue(); });
    constexpr std::chrono::days never{3650};
    const auto next = std::ranges::min_element(m_waiting, {}, &Alert::at);
    m_timer->wakeAt(next == m_waiting.end() ? Clock::now() + never : next->at);
}

} // namespace skyvane
