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

std::chrono::milliseconds retryAfter(int missed)
{
    constexpr int mostDoublings = 6; // Past the longest already.
    const int doublings = std::clamp(missed - 1, 0, mostDoublings);
    return std::min<std::chrono::milliseconds>(
        Schedule::leastWait * (1 << doublings), Schedule::longestRetry);
}

Schedule::Schedule(ExtensionProcess& extension, Show show)
    : m_extension(extension), m_show(std::move(show)), m_timer([this] { lookAtClock(); })
{
}

void Schedule::add(int widget, const WidgetTarget& target)
{
    const int serial = ++m_lastSerial;
    m_plans.insert_or_assign(widget, Plan{.target = target, .serial = serial, .due = Clock::now()});
    const Protocol::PlaceholderCall call{.params = target};
    m_extension.ask(call, [=, this](const std::optional<Protocol::OneEntry>& placeholder) {
        Plan* plan = find(widget, serial);
        if (plan == nullptr || !placeholder || plan->timeline)
            return;
        plan->shown = placeholder->entry;
        m_show(widget, {.entry = placeholder->entry, .isStale = plan->missed >= 2});
    });
    lookAtClock();
}

void Schedule::remove(int widget)
{
    m_plans.erase(widget);
    arm();
}

void Schedule::refresh(int widget)
{
    if (const auto plan = m_plans.find(widget); plan != m_plans.end()) {
        plan->second.isOutdated = plan->second.isAsking;
        plan->second.due = Clock::now();
        lookAtClock();
    }
}

void Schedule::refreshAll()
{
    for (auto& [widget, plan] : m_plans) {
        plan.isOutdated = plan.isAsking;
        plan.due = Clock::now();
    }
    lookAtClock();
}

void Schedule::lookAtClock()
{
    const Date now = Clock::now();
    for (auto& [widget, plan] : m_plans) {
        if (!plan.isAsking && plan.due <= now)
            ask(widget, plan);
        else if (plan.timeline)
            show(widget, plan);
    }
    arm();
}

Schedule::Plan* Schedule::find(int widget, int serial)
{
    const auto place = m_plans.find(widget);
    return place != m_plans.end() && place->second.serial == serial ? &place->second : nullptr;
}

void Schedule::ask(int widget, Plan& plan)
{
    plan.isAsking = true;
    plan.isOutdated = false;
    m_extension.ask(Protocol::TimelineCall{.params = plan.target},
        [this, widget, serial = plan.serial](const std::optional<WidgetTimeline>& timeline) {
            if (Plan* asked = find(widget, serial))
                take(widget, *asked, timeline);
        });
}

void Schedule::take(int widget, Plan& plan, const std::optional<WidgetTimeline>& timeline)
{
    const Date now = Clock::now();
    plan.isAsking = false;
    if (timeline && !timeline->entries.empty()) {
        plan.timeline = timeline;
        plan.missed = 0;
        plan.due = std::max(timeline->reload.date, now + leastWait);
    } else {
        plan.due = now + retryAfter(++plan.missed);
    }
    if (std::exchange(plan.isOutdated, false))
        plan.due = now;
    show(widget, plan);
    lookAtClock();
}

void Schedule::show(int widget, Plan& plan)
{
    if (plan.timeline)
        plan.shown = *entryAt(*plan.timeline, Clock::now());
    if (plan.shown)
        m_show(widget, {.entry = *plan.shown, .isStale = plan.missed >= 2});
}

void Schedule::arm()
{
    const Date now = Clock::now();
    Date next = Date::max();
    for (const auto& [widget, plan] : m_plans) {
        if (!plan.isAsking)
            next = std::min(next, plan.due);
        for (const WidgetEntry& entry : plan.timeline ? plan.timeline->entries : std::vector<WidgetEntry>{}) {
            if (entry.date > now)
                next = std::min(next, entry.date);
        }
    }
    // Armed even when nothing is to come: a clock that is set is noticed all the same.
    constexpr std::chrono::days farAway{3650};
    m_timer.wakeAt(std::min<Date>(next, now + farAway));
}

} // namespace skyvane
