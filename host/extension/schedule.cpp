#include "host/extension/schedule.h"

#include <algorithm>
#include <utility>

namespace skyvane {

const WidgetEntry* entryAt(const WidgetTimeline& timeline, Date moment)
{
    const WidgetEntry* found = timeline.entries.empty() ? nullptr : &timeline.entries.front();
    for (const WidgetEntry& entry : timeline.entries) {
        if (entry.date <= moment)
            found = &entry;
    }
    return found;
}

Date nextEntryDate(const WidgetTimeline& timeline, Date moment)
{
    Date next = Date::max();
    for (const WidgetEntry& entry : timeline.entries) {
        if (entry.date > moment)
            next = std::min(next, entry.date);
    }
    return next;
}

std::chrono::milliseconds retryAfter(int missed)
{
    constexpr int mostDoublings = 6; // Past the longest already.
    const int doublings = std::clamp(missed - 1, 0, mostDoublings);
    return std::min<std::chrono::milliseconds>(
        Schedule::leastWait * (1 << doublings), Schedule::longestRetry);
}

Schedule::Schedule(ExtensionProcess& extension, Show show, std::filesystem::path turn)
    : m_extension(extension)
    , m_show(std::move(show))
    , m_turnFile(std::move(turn))
    , m_timer([this] { lookAtClock(); })
{
}

void Schedule::add(int widget, const WidgetTarget& target)
{
    m_plans.insert_or_assign(widget, Plan{.target = target});
    askPlaceholder(widget, target);
    refreshSoon();
}

void Schedule::remove(int widget)
{
    m_plans.erase(widget);
    arm();
}

void Schedule::refresh(int widget)
{
    if (const auto plan = m_plans.find(widget); plan != m_plans.end()) {
        plan->second.isRefreshing = true;
        refreshSoon();
    }
}

void Schedule::refreshAll()
{
    for (auto& [widget, plan] : m_plans)
        plan.isRefreshing = true;
    refreshSoon();
}

void Schedule::refreshSoon()
{
    m_due = Clock::now();
    lookAtClock();
}

/// Placeholders come at once; the question waits for them, so that it is for all widgets.
void Schedule::lookAtClock()
{
    for (auto& [widget, plan] : m_plans)
        show(widget, plan);
    if (!m_isAsking && m_placeholders == 0 && !m_plans.empty() && m_due <= Clock::now())
        askTimelines();
    arm();
}

void Schedule::askPlaceholder(int widget, const WidgetTarget& target)
{
    ++m_placeholders;
    m_extension.ask(Protocol::PlaceholderCall{.params = target},
        [=, this](const std::optional<Protocol::OneEntry>& placeholder) {
            --m_placeholders;
            const auto place = m_plans.find(widget);
            if (placeholder && place != m_plans.end() && place->second.target == target)
                place->second.shown = placeholder->entry;
            lookAtClock();
        });
}

/// The companion may be asking just now. A turn that never comes is waited for no longer than two answers
/// take.
bool Schedule::takeTurn()
{
    constexpr std::chrono::seconds rest{1};
    constexpr std::chrono::seconds patience{20};
    constexpr std::chrono::milliseconds pause{100};
    const Date now = Clock::now();
    m_turn = SharedTurn::take(m_turnFile, rest);
    const bool isPatient = now - m_waitsSince.value_or(now) < patience;
    if (m_turn || !isPatient) {
        m_waitsSince.reset();
        return true;
    }
    m_waitsSince = m_waitsSince.value_or(now);
    m_due = now + pause;
    return false;
}

void Schedule::askTimelines()
{
    if (!takeTurn())
        return;
    m_isAsking = true;
    m_due = Date::max();
    m_extension.askInTurn<Protocol::TimelinesCall>([this] { return question(); },
        [this](const std::optional<Protocol::WidgetTimelines>& answer) { take(answer); });
}

/// Of the widgets that there are when its turn has come. Those of the same kind and family share a timeline.
std::optional<Protocol::TimelinesCall> Schedule::question()
{
    m_due = Date::max();
    m_asked.clear();
    for (const auto& [widget, plan] : m_plans) {
        const bool isNew = plan.shown && std::ranges::find(m_asked, plan.target) == m_asked.end();
        if (isNew && m_asked.size() < Protocol::Limits::mostWidgets)
            m_asked.push_back(plan.target);
    }
    if (m_asked.empty())
        return std::nullopt;
    return Protocol::TimelinesCall{.params = {.widgets = m_asked, .alerts = m_alertRules}};
}

void Schedule::take(const std::optional<Protocol::WidgetTimelines>& answer)
{
    m_turn.reset();
    const Date now = Clock::now();
    const bool isWantedAgain = m_due != Date::max();
    const std::optional<Date> reload = update(answer);
    m_missed = reload ? 0 : m_missed + 1;
    m_due = std::min(m_due, reload ? std::max<Date>(*reload, now + leastWait) : now + retryAfter(m_missed));
    m_isAsking = false;
    for (auto& [widget, plan] : m_plans) {
        plan.isRefreshing = plan.isRefreshing && isWantedAgain;
        if (!plan.shown)
            askPlaceholder(widget, plan.target);
    }
    lookAtClock();
    if (answer && answer->alerts)
        m_tell(*answer->alerts);
}

/// The earliest reload date; absent when there is nothing new, which every widget has missed then.
std::optional<Date> Schedule::update(const std::optional<Protocol::WidgetTimelines>& answer)
{
    const bool isWhole = answer && answer->timelines.size() == m_asked.size();
    std::optional<Date> reload;
    for (auto& [widget, plan] : m_plans) {
        const auto place = std::ranges::find(m_asked, plan.target);
        if (isWhole && place == m_asked.end())
            continue;
        const auto index = static_cast<std::size_t>(place - m_asked.begin());
        if (!isWhole || answer->timelines[index].entries.empty()) {
            ++plan.missed;
            continue;
        }
        plan.timeline = answer->timelines[index];
        plan.missed = 0;
        reload = std::min(reload.value_or(Date::max()), plan.timeline->reload.date);
    }
    return reload;
}

void Schedule::show(int widget, Plan& plan)
{
    if (plan.timeline)
        plan.shown = *entryAt(*plan.timeline, Clock::now());
    if (plan.shown)
        m_show(widget,
            {
                .entry = *plan.shown,
                .isStale = plan.missed >= 2,
                .isRefreshing = plan.isRefreshing,
                .isExtensionStopping = m_extension.stopsAtEachRequest(),
            });
}

void Schedule::arm()
{
    const Date now = Clock::now();
    Date next = m_isAsking || m_placeholders > 0 || m_plans.empty() ? Date::max() : m_due;
    for (const auto& [widget, plan] : m_plans) {
        if (plan.timeline)
            next = std::min(next, std::max<Date>(nextEntryDate(*plan.timeline, now), now + leastStep));
    }
    // Armed even when nothing is to come: a clock that is set is noticed all the same.
    constexpr std::chrono::days farAway{3650};
    m_timer.wakeAt(std::min<Date>(next, now + farAway));
}

} // namespace skyvane
