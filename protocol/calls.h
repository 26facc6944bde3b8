#pragma once

#include "protocol/alert.h"
#include "protocol/alert_rules.h"
#include "protocol/limits.h"
#include "protocol/members.h"
#include "protocol/widget_entry.h"
#include "protocol/widget_info.h"
#include "protocol/widget_target.h"
#include "protocol/widget_timeline.h"

#include <optional>
#include <string_view>
#include <tuple>
#include <variant>
#include <vector>

/// What a host asks of the extension (docs/protocol.md).
namespace skyvane::Protocol {

struct NoParams {
    bool operator==(const NoParams&) const = default;
};

template <>
struct Members<NoParams> {
    static constexpr std::tuple<> list{};
};

struct WidgetList {
    std::vector<WidgetInfo> widgets;
};

template <>
struct Members<WidgetList> {
    static constexpr Constant constant{"protocol", Limits::version};
    static constexpr auto list = std::tuple{member("widgets", &WidgetList::widgets)};
};

struct OneEntry {
    WidgetEntry entry;
};

template <>
struct Members<OneEntry> {
    static constexpr auto list = std::tuple{member("entry", &OneEntry::entry)};
};

struct SnapshotParams {
    WidgetTarget target;
    std::optional<bool> isPreview{}; ///< Whether the sample will do; absent is false.

    bool operator==(const SnapshotParams&) const = default;
};

template <>
struct Members<SnapshotParams> {
    static constexpr auto list
        = std::tuple{embedded(&SnapshotParams::target), member("isPreview", &SnapshotParams::isPreview)};
};

struct TimelinesParams {
    std::vector<WidgetTarget> widgets; ///< At least one, at most `Limits::mostWidgets`.
    std::optional<AlertRules> alerts{}; ///< Without them nobody asks for alerts.

    bool operator==(const TimelinesParams&) const = default;
};

template <>
struct Members<TimelinesParams> {
    static constexpr auto list = std::tuple{
        member("widgets", &TimelinesParams::widgets),
        member("alerts", &TimelinesParams::alerts),
    };
};

struct WidgetTimelines {
    std::vector<WidgetTimeline> timelines; ///< In the order asked.
    std::optional<std::vector<Alert>> alerts{}; ///< The most urgent first; absent unless asked for.
};

template <>
struct Members<WidgetTimelines> {
    static constexpr auto list = std::tuple{
        member("timelines", &WidgetTimelines::timelines),
        member("alerts", &WidgetTimelines::alerts),
    };
};

// Each call has its name and the types of its parameters and its result. One that asks the feed may take its
// time, and a host spaces such calls.

/// Everything on offer.
struct ListCall {
    static constexpr std::string_view name = "widgets.list";
    using Params = NoParams;
    using Result = WidgetList;
    Params params{};

    bool asksFeed() const { return false; }
};

/// What to show until there is something to show.
struct PlaceholderCall {
    static constexpr std::string_view name = "widgets.placeholder";
    using Params = WidgetTarget;
    using Result = OneEntry;
    Params params;

    bool asksFeed() const { return false; }
};

/// This moment, or the sample.
struct SnapshotCall {
    static constexpr std::string_view name = "widgets.snapshot";
    using Params = SnapshotParams;
    using Result = OneEntry;
    Params params;

    bool asksFeed() const { return !params.isPreview.value_or(false); }
};

/// This moment, and when to ask again.
struct TimelineCall {
    static constexpr std::string_view name = "widgets.timeline";
    using Params = WidgetTarget;
    using Result = WidgetTimeline;
    Params params;

    bool asksFeed() const { return true; }
};

/// The same of several widgets, all of one moment's sky, and what is worth telling about it.
struct TimelinesCall {
    static constexpr std::string_view name = "widgets.timelines";
    using Params = TimelinesParams;
    using Result = WidgetTimelines;
    Params params;

    bool asksFeed() const { return true; }
};

/// The table of calls: a new one is one entry more.
using AnyCall = std::variant<ListCall, PlaceholderCall, SnapshotCall, TimelineCall, TimelinesCall>;

/// The one notification. Names a request, which is then answered with `ErrorCode::cancelled`.
inline constexpr std::string_view cancelNotification = "cancel";

} // namespace skyvane::Protocol
