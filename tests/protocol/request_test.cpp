#include "protocol/request.h"

#include <gtest/gtest.h>

#include <string>

namespace skyvane::Protocol {

namespace {

const WidgetTarget radar{.kind = "a.radar", .family = WidgetFamily::medium};

/// What the extension reads of the line that a host writes.
template <class Call>
typename Call::Params sentAndRead(const Call& call)
{
    const JSON::Document document{requestLine(1, call)};
    const auto method = JSON::string(document.root()["method"].value());
    return std::get<Call>(readCall(method, document.root()["params"].value()).value()).params;
}

/// What the extension says of parameters that it does not take.
std::string complaint(std::string_view method, const std::string& params)
{
    const JSON::Document document{params};
    try {
        readCall(method, document.root());
        return "none";
    } catch (const JSON::DecodingError& error) {
        return error.sentence();
    }
}

} // namespace

TEST(Request, isOneLine)
{
    EXPECT_EQ(requestLine(1, ListCall{}),
        "{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"widgets.list\",\"params\":{}}\n");
    EXPECT_EQ(requestLine(2, SnapshotCall{.params = {.target = radar, .isPreview = true}}),
        "{\"jsonrpc\":\"2.0\",\"id\":2,\"method\":\"widgets.snapshot\","
        "\"params\":{\"kind\":\"a.radar\",\"family\":\"medium\",\"isPreview\":true}}\n");
}

TEST(Request, isReadAsItWasWritten)
{
    EXPECT_EQ(sentAndRead(ListCall{}), NoParams{});
    EXPECT_EQ(sentAndRead(PlaceholderCall{.params = radar}), radar);
    EXPECT_EQ(sentAndRead(TimelineCall{.params = radar}), radar);
    const TimelinesParams two{.widgets = {radar, {.kind = "a.board", .family = WidgetFamily::large}}};
    EXPECT_EQ(sentAndRead(TimelinesCall{.params = two}), two);
    TimelinesParams watched = two;
    watched.alerts = AlertRules{};
    EXPECT_EQ(sentAndRead(TimelinesCall{.params = watched}), watched);
    watched.alerts = AlertRules{
        .emergency = true,
        .military = false,
        .overhead = OverheadRule{.elevation = 45.5, .within = 480},
        .watch = std::vector<std::string>{"BAW*", ""},
    };
    EXPECT_EQ(sentAndRead(TimelinesCall{.params = watched}), watched);
    for (const std::optional<bool> isPreview : {std::optional<bool>{}, {true}, {false}}) {
        const SnapshotParams params{.target = radar, .isPreview = isPreview};
        EXPECT_EQ(sentAndRead(SnapshotCall{.params = params}), params);
    }
}

TEST(Request, withoutRulesIsWhatItWasBeforeThereWereAny)
{
    EXPECT_EQ(requestLine(3, TimelinesCall{.params = {.widgets = {radar}}}),
        "{\"jsonrpc\":\"2.0\",\"id\":3,\"method\":\"widgets.timelines\","
        "\"params\":{\"widgets\":[{\"kind\":\"a.radar\",\"family\":\"medium\"}]}}\n");
}

TEST(Request, namesAWrongRule)
{
    const auto rule = [](const std::string& rules) {
        return complaint("widgets.timelines", R"({"widgets":[],"alerts":)" + rules + "}");
    };
    EXPECT_EQ(rule("[]"), "alerts is not an object");
    EXPECT_EQ(rule("null"), "alerts is not an object");
    EXPECT_EQ(rule(R"({"emergency":"yes"})"), "alerts.emergency is not true or false");
    EXPECT_EQ(rule(R"({"military":1})"), "alerts.military is not true or false");
    EXPECT_EQ(rule(R"({"overhead":true})"), "alerts.overhead is not an object");
    EXPECT_EQ(rule(R"({"overhead":{"elevation":45}})"), "alerts.overhead.within is missing");
    EXPECT_EQ(rule(R"({"overhead":{"elevation":"high","within":60}})"),
        "alerts.overhead.elevation is not a number");
    EXPECT_EQ(rule(R"({"watch":"BAW*"})"), "alerts.watch is not an array");
    EXPECT_EQ(rule(R"({"watch":["BAW*",3]})"), "alerts.watch[1] is not a string");
    EXPECT_EQ(rule(R"({"helicopters":true})"), "none");
}

TEST(Request, asksTheFeedOnlyForWhatIsLive)
{
    EXPECT_FALSE(ListCall{}.asksFeed());
    EXPECT_FALSE(PlaceholderCall{.params = radar}.asksFeed());
    EXPECT_FALSE((SnapshotCall{.params = {.target = radar, .isPreview = true}}.asksFeed()));
    EXPECT_TRUE((SnapshotCall{.params = {.target = radar, .isPreview = false}}.asksFeed()));
    EXPECT_TRUE((SnapshotCall{.params = {.target = radar}}.asksFeed()));
    EXPECT_TRUE(TimelineCall{.params = radar}.asksFeed());
    EXPECT_TRUE((TimelinesCall{.params = {.widgets = {radar}}}.asksFeed()));
}

TEST(Request, ofAnUnknownNameIsNoCall)
{
    const JSON::Document none{std::string_view{"[]"}};
    for (const std::string_view method : {"", "widgets", "widgets.List", "cancel"})
        EXPECT_FALSE(readCall(method, none.root())) << method;
}

TEST(Request, saysWhatIsWrongWithItsParameters)
{
    EXPECT_EQ(complaint("widgets.list", "[]"), "params is not an object");
    EXPECT_EQ(complaint("widgets.list", R"({"kind":3})"), "none");
    EXPECT_EQ(complaint("widgets.timeline", "{}"), "kind is missing");
    EXPECT_EQ(complaint("widgets.timeline", R"({"kind":"a","family":null})"), "family is not a string");
    EXPECT_EQ(complaint("widgets.timeline", R"({"kind":"a","family":"huge"})"), "unknown family \"huge\"");
    EXPECT_EQ(complaint("widgets.timelines", "{}"), "widgets is missing");
    EXPECT_EQ(complaint("widgets.timelines", R"({"widgets":{}})"), "widgets is not an array");
    EXPECT_EQ(complaint("widgets.timelines", R"({"widgets":[{"kind":"a","family":"small"},{"kind":"a"}]})"),
        "widgets[1].family is missing");
    EXPECT_EQ(complaint("widgets.snapshot", R"({"kind":"a","family":"small","isPreview":null})"),
        "isPreview is not true or false");
}

} // namespace skyvane::Protocol
