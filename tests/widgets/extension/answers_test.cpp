#include "widgets/extension/answers.h"

#include "protocol/record_codec.h"
#include "ui/tree/build.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace skyvane::Extension {

namespace {

using std::chrono::milliseconds;

SkyEntry entry(milliseconds date)
{
    return {
        .date = Date{date},
        .aircraft = {},
        .radiusNM = 25,
        .home = std::nullopt,
        .isSample = false,
        .unit = "mi",
    };
}

/// A widget whose view is one text, the entry's unit.
Widget widget(std::optional<URL> url)
{
    return {
        .kind = "test.unit",
        .displayName = "Unit",
        .description = "Says \"mi\".",
        .supportedFamilies = {WidgetFamily::small, WidgetFamily::large},
        .content =
            [url](const SkyEntry& shown, WidgetFamily) {
                return WidgetContent{
                    .view
                    = text(shown.unit).font({.size = 9.0}).foreground({.red = 1, .green = 0, .blue = 0}),
                    .widgetURL = url,
                    .containerBackground = {.red = 0, .green = 0.5, .blue = 1, .opacity = 0.25},
                };
            },
    };
}

Result entryResult(const SkyEntry& entry, const Widget& shown)
{
    return Protocol::write(
        Protocol::OneEntry{widgetEntry(entry, {.widget = &shown, .family = WidgetFamily::small})});
}

constexpr const char* view = R"({"type":"text","text":"mi","font":{"size":9},"color":[1,0,0,1]})";

} // namespace

TEST(Answers, aListNamesEveryWidgetInOrder)
{
    EXPECT_EQ(Protocol::write(widgetList({widget({})})).dump(),
        R"({"protocol":1,"widgets":[{"kind":"test.unit","displayName":"Unit","description":"Says \"mi\".",)"
        R"("families":["small","large"]}]})");
    EXPECT_EQ(Protocol::write(widgetList({})).dump(), R"({"protocol":1,"widgets":[]})");
}

TEST(Answers, anEntryIsItsDateItsViewAndItsContainer)
{
    const Widget shown = widget(URL::parse("skyvane://open"));
    const Result result = entryResult(entry(milliseconds{1700000000123}), shown);
    EXPECT_EQ(result.dump(),
        R"({"entry":{"date":1700000000.123,"isSample":false,"view":)" + std::string{view}
            + R"(,"background":[0,0.5,1,0.25],"url":"skyvane://open"}})");
}

TEST(Answers, anEntryWithoutALinkSaysSo)
{
    const Widget shown = widget({});
    const Result result = entryResult(entry({}), shown);
    EXPECT_TRUE(result.at("entry").at("url").is_null());
}

TEST(Answers, datesAreSecondsToTheMillisecond)
{
    const Widget shown = widget({});
    const auto date
        = [&](milliseconds since) { return entryResult(entry(since), shown)["entry"]["date"].dump(); };
    EXPECT_EQ(date(milliseconds{1700000000001}), "1700000000.001");
    EXPECT_EQ(date(milliseconds{1700000000999}), "1700000000.999");
    EXPECT_EQ(date(milliseconds{-1}), "-0.001");
}

TEST(Answers, aTimelineSaysWhenToAskAgain)
{
    const Widget shown = widget({});
    const SkyTimeline timeline{.entries = {entry(milliseconds{1000}), entry(milliseconds{2000})},
        .reloadAfter = Date{milliseconds{300500}}};
    const Result result
        = Protocol::write(widgetTimeline(timeline, {.widget = &shown, .family = WidgetFamily::small}));
    EXPECT_EQ(result["entries"].size(), 2U);
    EXPECT_EQ(result["entries"][1]["date"], 2);
    EXPECT_EQ(result["reload"].dump(), R"({"policy":"after","date":300.5})");
}

TEST(Answers, aLineHoldsNoLineBreakButItsLast)
{
    const std::string line = resultLine(R"("a\nb")", {{"text", "c\r\nd"}});
    EXPECT_EQ(line, "{\"jsonrpc\":\"2.0\",\"id\":\"a\\nb\",\"result\":{\"text\":\"c\\r\\nd\"}}\n");
}

TEST(Answers, anIdentityIsGivenBackCharacterForCharacter)
{
    for (const char* const id : {"1e2", "123456789012345678901234567890", R"("\u0061\/")", "null"}) {
        EXPECT_EQ(resultLine(id, 7), std::string{R"({"jsonrpc":"2.0","id":)"} + id + ",\"result\":7}\n");
        EXPECT_THAT(errorLine(id, ErrorCode::cancelled, "cancelled"),
            testing::StartsWith(std::string{R"({"jsonrpc":"2.0","id":)"} + id + ",\"error\":"));
    }
}

TEST(Answers, anErrorNamesItsCode)
{
    EXPECT_EQ(errorLine(noID, ErrorCode::parseError, "not JSON"),
        "{\"jsonrpc\":\"2.0\",\"id\":null,\"error\":{\"code\":-32700,\"message\":\"not JSON\"}}\n");
}

TEST(Answers, noRecordOfAFeedMakesOneTooLong)
{
    SkyEntry sky = entry(milliseconds{1000});
    sky.home = HomeLocation{.latitude = 51.5, .longitude = -0.12, .label = "Home"};
    for (const char* const part :
        {"a", "\x01", "e\u0301", "\U0001F468\u200D\U0001F469\u200D\U0001F467", "%zz"}) {
        std::string longText;
        while (longText.size() < 100'000)
            longText += part;
        sky.aircraft.assign(60,
            {.hex = longText,
                .flight = longText,
                .registration = longText,
                .typeCode = longText,
                .lat = 51.6,
                .lon = -0.1,
                .distanceNM = 1e300,
                .directionDeg = 10.125});
        for (const Widget& shown : SkyvaneWidgetBundle{}.body())
            for (const WidgetFamily family : shown.supportedFamilies) {
                const Result result = Protocol::write(widgetTimeline(
                    {.entries = {sky}, .reloadAfter = {}}, {.widget = &shown, .family = family}));
                EXPECT_THAT(resultLine("1", result), testing::Not(testing::HasSubstr("\"error\"")))
                    << shown.kind;
            }
    }
}

TEST(Answers, severalTimelinesMayBeAsManyTimesAsLong)
{
    const std::string result(300'000, 'x');
    EXPECT_THAT(
        resultLine("1", result, 2 * Protocol::Limits::longestTimeline), testing::HasSubstr("\"result\""));
    EXPECT_EQ(resultLine("1", std::string(600'000, 'x'), 2 * Protocol::Limits::longestTimeline),
        errorLine("1", ErrorCode::internalError, "the answer is longer than 512 KiB"));
    const WidgetTarget target{.kind = "a", .family = WidgetFamily::small};
    const auto KiB = [](std::size_t count) { return count << 10; };
    EXPECT_EQ(longestResult(Protocol::TimelineCall{.params = target}), KiB(256));
    EXPECT_EQ(longestResult(Protocol::TimelinesCall{.params = {.widgets = {target, target}}}), KiB(512));
    EXPECT_EQ(longestResult(Protocol::TimelinesCall{.params = {.widgets = {target}, .alerts = AlertRules{}}}),
        KiB(512));
}

TEST(Answers, aResultThatIsTooLongBecomesAnError)
{
    constexpr std::size_t limit = std::size_t{256} << 10;
    const std::size_t frame = resultLine("1", "").size();
    EXPECT_EQ(resultLine("1", std::string(limit - frame, 'x')).size(), limit);
    EXPECT_EQ(resultLine("1", std::string(limit - frame + 1, 'x')),
        errorLine("1", ErrorCode::internalError, "the answer is longer than 256 KiB"));
}

} // namespace skyvane::Extension
