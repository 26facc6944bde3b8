#include "widgets/extension/message.h"

#include "widgets/extension/offered_widget.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace skyvane::Extension {

namespace {

const std::vector<Widget>& offered()
{
    static const std::vector<Widget> list{
        {
            .kind = "test.two",
            .displayName = "Two",
            .description = "In two sizes",
            .supportedFamilies = {WidgetFamily::small, WidgetFamily::medium},
            .content = {},
        },
        {
            .kind = "test.one",
            .displayName = "One",
            .description = "In one size",
            .supportedFamilies = {WidgetFamily::large},
            .content = {},
        },
    };
    return list;
}

Message read(const std::string& line)
{
    return readMessage(line, offered());
}

/// A request with this method and these parameters, JSON both.
Message read(const std::string& method, const std::string& params)
{
    return read(R"({"jsonrpc":"2.0","id":1,"method":)" + method + R"(,"params":)" + params + "}");
}

/// A request for the timelines of one widget so often.
std::string severalTimelines(std::size_t count)
{
    const std::string one = R"({"kind":"test.one","family":"large"})";
    std::string list = one;
    for (std::size_t index = 1; index < count; ++index)
        list += ',' + one;
    return R"({"jsonrpc":"2.0","id":1,"method":"widgets.timelines","params":{"widgets":[)" + list + "]}}";
}

template <class Call>
Call call(const Message& message)
{
    return std::get<Call>(std::get<Request>(message).call);
}

struct RefusalCase {
    const char* situation;
    std::string line;
    ErrorCode code;
    std::string message;
    RequestID id = noID;
};

class RefusedLines : public testing::TestWithParam<RefusalCase> { };

std::string withRules(const std::string& rules)
{
    return R"({"widgets":[{"kind":"test.one","family":"large"}],"alerts":)" + rules + "}";
}

std::string patterns(int count)
{
    std::string list = "\"a\"";
    while (--count > 0)
        list += ",\"a\"";
    return list;
}

RefusalCase params(const char* situation, const char* method, const std::string& params, const char* message)
{
    return {situation,
        R"({"jsonrpc":"2.0","id":"x","method":")" + std::string{method} + R"(","params":)" + params + "}",
        ErrorCode::invalidParams, message, "\"x\""};
}

} // namespace

TEST_P(RefusedLines, sayWhy)
{
    const auto refusal = std::get<Refusal>(read(GetParam().line));
    EXPECT_EQ(refusal.code, GetParam().code);
    EXPECT_EQ(refusal.id, GetParam().id);
    EXPECT_EQ(refusal.message, GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(Message, RefusedLines,
    testing::Values(RefusalCase{"anArray", "[]", ErrorCode::invalidRequest, "not a request object"},
        RefusalCase{"aNumber", "1", ErrorCode::invalidRequest, "not a request object"},
        RefusalCase{"noVersion", R"({"id":1,"method":"widgets.list"})", ErrorCode::invalidRequest,
            "jsonrpc is not \"2.0\""},
        RefusalCase{"versionAsANumber", R"({"jsonrpc":2.0,"id":1,"method":"widgets.list"})",
            ErrorCode::invalidRequest, "jsonrpc is not \"2.0\""},
        RefusalCase{
            "noMethod", R"({"jsonrpc":"2.0","id":1})", ErrorCode::invalidRequest, "method is not a string"},
        RefusalCase{"methodAsANumber", R"({"jsonrpc":"2.0","id":1,"method":1})", ErrorCode::invalidRequest,
            "method is not a string"},
        RefusalCase{"idAsAnObject", R"({"jsonrpc":"2.0","id":{},"method":"widgets.list"})",
            ErrorCode::invalidRequest, "id is not a string, a number or null"},
        RefusalCase{"idAsATruth", R"({"jsonrpc":"2.0","id":true,"method":"widgets.list"})",
            ErrorCode::invalidRequest, "id is not a string, a number or null"},
        RefusalCase{"unknownMethod", R"({"jsonrpc":"2.0","id":2,"method":"widgets.List","params":[]})",
            ErrorCode::unknownMethod, "unknown method \"widgets.List\"", "2"},
        RefusalCase{"cancelAsARequest", R"({"jsonrpc":"2.0","id":2,"method":"cancel","params":{"id":1}})",
            ErrorCode::unknownMethod, "unknown method \"cancel\"", "2"},
        params("paramsAsAList", "widgets.list", "[]", "params is not an object"),
        params("paramsAsNull", "widgets.list", "null", "params is not an object"),
        params("noKind", "widgets.placeholder", R"({"family":"small"})", "kind is missing"),
        params(
            "kindAsNull", "widgets.placeholder", R"({"kind":null,"family":"small"})", "kind is not a string"),
        params("unknownKind", "widgets.placeholder", R"({"kind":"test.three","family":"small"})",
            "unknown kind \"test.three\""),
        params("noFamily", "widgets.snapshot", R"({"kind":"test.two"})", "family is missing"),
        params("familyAsANumber", "widgets.snapshot", R"({"kind":"test.two","family":1})",
            "family is not a string"),
        params("unknownFamily", "widgets.snapshot", R"({"kind":"test.two","family":"Small"})",
            "unknown family \"Small\""),
        params("familyThatTheWidgetLacks", "widgets.timeline", R"({"kind":"test.two","family":"large"})",
            "test.two does not support family \"large\""),
        params("previewAsANumber", "widgets.snapshot",
            R"({"kind":"test.two","family":"small","isPreview":0})", "isPreview is not true or false"),
        params("previewAsNull", "widgets.snapshot",
            R"({"kind":"test.two","family":"small","isPreview":null})", "isPreview is not true or false"),
        params("noWidgets", "widgets.timelines", "{}", "widgets is missing"),
        params("aWidgetForWidgets", "widgets.timelines",
            R"({"widgets":{"kind":"test.two","family":"small"}})", "widgets is not an array"),
        params("anEmptyListOfWidgets", "widgets.timelines", R"({"widgets":[]})",
            "widgets is not an array of 1 to 16"),
        RefusalCase{"oneWidgetTooMany", severalTimelines(17), ErrorCode::invalidParams,
            "widgets is not an array of 1 to 16", "1"},
        params("anUnknownKindAmongWidgets", "widgets.timelines",
            R"({"widgets":[{"kind":"test.one","family":"large"},{"kind":"test.three","family":"small"}]})",
            "widgets[1]: unknown kind \"test.three\""),
        params("aFamilyThatAmongWidgetsOneLacks", "widgets.timelines",
            R"({"widgets":[{"kind":"test.one","family":"small"}]})",
            "widgets[0]: test.one does not support family \"small\""),
        params("anUnknownFamilyAmongWidgets", "widgets.timelines",
            R"({"widgets":[{"kind":"test.one","family":"large"},{"kind":"test.two","family":"huge"}]})",
            "unknown widgets[1].family \"huge\""),
        params("aRuleOfAnotherType", "widgets.timelines", withRules(R"({"military":"yes"})"),
            "alerts.military is not true or false"),
        params("anElevationBeyondTheZenith", "widgets.timelines",
            withRules(R"({"overhead":{"elevation":90.5,"within":60}})"),
            "alerts.overhead.elevation is not an angle of 0 to 90 degrees"),
        params("anElevationBelowTheHorizon", "widgets.timelines",
            withRules(R"({"overhead":{"elevation":-1,"within":60}})"),
            "alerts.overhead.elevation is not an angle of 0 to 90 degrees"),
        params("noTimeToForesee", "widgets.timelines",
            withRules(R"({"overhead":{"elevation":45,"within":0}})"),
            "alerts.overhead.within is not a time above 0 and up to 3600 seconds"),
        params("aDayToForesee", "widgets.timelines",
            withRules(R"({"overhead":{"elevation":45,"within":86400}})"),
            "alerts.overhead.within is not a time above 0 and up to 3600 seconds"),
        params("onePatternTooMany", "widgets.timelines", withRules(R"({"watch":[)" + patterns(201) + "]}"),
            "alerts.watch is not an array of at most 200")),
    [](const auto& row) { return std::string{row.param.situation}; });

TEST(Message, whatIsNotJSONIsAParseErrorOfNoRequest)
{
    for (const std::string line :
        {"", "x", "{", R"({"jsonrpc":"2.0","id":1,"method":"widgets.list"} x)", "\"\xff\""}) {
        const auto refusal = std::get<Refusal>(read(line));
        EXPECT_EQ(refusal.code, ErrorCode::parseError) << line;
        EXPECT_EQ(refusal.id, noID) << line;
        EXPECT_NE(refusal.message, "") << line;
    }
}

TEST(Message, requestsNameAWidgetInAFamily)
{
    const auto placeholder = call<Protocol::PlaceholderCall>(
        read(R"("widgets.placeholder")", R"({"kind":"test.one","family":"large"})"));
    const OfferedWidget one = OfferedWidget::find(placeholder.params, offered());
    EXPECT_EQ(one.widget, &offered()[1]);
    EXPECT_EQ(one.family, WidgetFamily::large);
    const auto timeline = call<Protocol::TimelineCall>(
        read(R"("widgets.timeline")", R"({"family":"medium","kind":"test.two"})"));
    const OfferedWidget two = OfferedWidget::find(timeline.params, offered());
    EXPECT_EQ(two.widget, &offered()[0]);
    EXPECT_EQ(two.family, WidgetFamily::medium);
}

TEST(Message, oneToSixteenWidgetsMayBeNamedAtOnce)
{
    for (const std::size_t count : {std::size_t{1}, Protocol::Limits::mostWidgets})
        EXPECT_EQ(call<Protocol::TimelinesCall>(read(severalTimelines(count))).params.widgets.size(), count);
}

TEST(Message, membersThatNobodyKnowsArePassedOver)
{
    const auto timelines = call<Protocol::TimelinesCall>(read(R"("widgets.timelines")",
        R"({"widgets":[{"kind":"test.two","family":"medium","colour":7}],"later":7})"));
    EXPECT_EQ(timelines.params.widgets,
        (std::vector<WidgetTarget>{{.kind = "test.two", .family = WidgetFamily::medium}}));
}

TEST(Message, aSnapshotIsLiveUnlessAPreviewIsAskedFor)
{
    const auto isPreview = [](const char* params) {
        return call<Protocol::SnapshotCall>(read(R"("widgets.snapshot")", params))
            .params.isPreview.value_or(false);
    };
    EXPECT_FALSE(isPreview(R"({"kind":"test.two","family":"small"})"));
    EXPECT_FALSE(isPreview(R"({"kind":"test.two","family":"small","isPreview":false})"));
    EXPECT_TRUE(isPreview(R"({"kind":"test.two","family":"small","isPreview":true})"));
}

TEST(Message, theListTakesNoParams)
{
    EXPECT_NO_THROW(call<Protocol::ListCall>(read(R"({"jsonrpc":"2.0","id":1,"method":"widgets.list"})")));
    EXPECT_NO_THROW(call<Protocol::ListCall>(read(R"("widgets.list")", R"({"anything":1})")));
}

TEST(Message, theFirstOfTwoEqualKeysCounts)
{
    EXPECT_EQ(std::get<Request>(read(R"({"jsonrpc":"2.0","id":1,"id":2,"method":"widgets.list"})")).id, "1");
}

TEST(Message, anIdentityStaysAsItWasSent)
{
    for (const char* id : {"1", "-9223372036854775808", "18446744073709551615",
             "123456789012345678901234567890", "1.0", "1.50", "1e2", "-0", "1E+999", "0.1", R"("1")", R"("")",
             R"("\u0061\/é\ud800")", R"("a }, \"b")", "null"}) {
        const Message message
            = read(R"({"jsonrpc":"2.0","x":[{"id":0},"id"],"method":"widgets.list", "\u0069d" : )"
                + std::string{id} + " }");
        ASSERT_TRUE(std::holds_alternative<Request>(message)) << id;
        EXPECT_EQ(std::get<Request>(message).id, id);
    }
}

TEST(Message, aCancellationNamesItsRequest)
{
    const auto cancelled = [](const std::string& params) {
        return std::get<Cancellation>(read(R"({"jsonrpc":"2.0","method":"cancel","params":)" + params + "}"))
            .id;
    };
    EXPECT_EQ(cancelled(R"({"id":"a"})"), R"("a")");
    EXPECT_EQ(cancelled(R"({"x":{"id":8},"id":7})"), "7");
    EXPECT_EQ(cancelled(R"({ "id" : 123456789012345678901234567890 })"), "123456789012345678901234567890");
}

TEST(Message, rulesForAlertsComeWithTheRequest)
{
    const auto rules = [](const std::string& text) {
        return call<Protocol::TimelinesCall>(read(R"("widgets.timelines")", withRules(text))).params.alerts;
    };
    EXPECT_EQ(rules("{}"), AlertRules{});
    EXPECT_EQ(rules(R"({"overhead":{"elevation":0,"within":3600},"later":3})"),
        (AlertRules{.overhead = OverheadRule{.elevation = 0, .within = 3600}}));
    EXPECT_EQ(rules(R"({"watch":[)" + patterns(200) + "]}").value().watch.value().size(), 200U);
}

TEST(Message, otherNotificationsMeanNothing)
{
    for (const char* line :
        {R"({"jsonrpc":"2.0","method":"cancel"})", R"({"jsonrpc":"2.0","method":"cancel","params":[1]})",
            R"({"jsonrpc":"2.0","method":"cancel","params":{"id":[]}})",
            R"({"jsonrpc":"2.0","method":"cancel","params":{}})",
            R"({"jsonrpc":"2.0","method":"widgets.list"})",
            R"({"jsonrpc":"2.0","method":"no such","params":1})"})
        EXPECT_TRUE(std::holds_alternative<IgnoredNotification>(read(line))) << line;
}

} // namespace skyvane::Extension
