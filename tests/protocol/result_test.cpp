#include "protocol/record_codec.h"
#include "protocol/request.h"
#include "tests/protocol/complaint.h"
#include "tests/support/replaced.h"
#include "ui/tree/build.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace skyvane::Protocol {

namespace {

using test::complaint;
using test::replaced;

const std::string goodEntry
    = R"({"date":1700000000.2504,"isSample":true,"background":[0,0.5,1,1],"url":"skyvane://open",
              "view":{"type":"spacer"}})";

template <class T>
T readText(const std::string& text)
{
    const JSON::Document document{text};
    return read<T>(document.root());
}

WidgetEntry entry(const std::string& text)
{
    return readText<OneEntry>(R"({"entry":)" + text + "}").entry;
}

WidgetEntry goodOne()
{
    return {
        .date = Date{std::chrono::milliseconds{1'700'000'000'250}},
        .isSample = true,
        .view = spacer(),
        .background = {0, 0.5, 1, 1},
        .url = URL::parse("skyvane://open"),
    };
}

} // namespace

TEST(Result, anEntryIsReadWhole)
{
    EXPECT_EQ(entry(goodEntry), goodOne());
}

TEST(Result, anEntryIsWrittenWhole)
{
    EXPECT_EQ(write(OneEntry{goodOne()}).dump(),
        R"({"entry":{"date":1700000000.25,"isSample":true,"view":{"type":"spacer"},)"
        R"("background":[0,0.5,1,1],"url":"skyvane://open"}})");
    WidgetEntry without = goodOne();
    without.url.reset();
    EXPECT_THAT(write(without).dump(), testing::EndsWith(R"(,"url":null})"));
}

TEST(Result, aUrlMayBeMissingOrNullOrNoUrl)
{
    EXPECT_EQ(entry(replaced(goodEntry, R"("url":"skyvane://open",)", "")).url, std::nullopt);
    EXPECT_EQ(entry(replaced(goodEntry, R"("skyvane://open")", "null")).url, std::nullopt);
    EXPECT_EQ(entry(replaced(goodEntry, "skyvane://open", "no url")).url, std::nullopt);
    EXPECT_THAT(complaint([] { entry(replaced(goodEntry, R"("skyvane://open")", "3")); }),
        testing::StartsWith("entry.url: "));
}

TEST(Result, aMistypedOrMissingMemberIsNamed)
{
    EXPECT_THAT(complaint([] { entry(replaced(goodEntry, "1700000000.2504", "\"now\"")); }),
        testing::StartsWith("entry.date: "));
    EXPECT_THAT(complaint([] { entry(replaced(goodEntry, "1700000000.2504", "1e300")); }),
        testing::StartsWith("entry.date: is no date"));
    EXPECT_THAT(complaint([] { entry(replaced(goodEntry, "\"isSample\"", "\"sample\"")); }),
        testing::StartsWith("entry.isSample: is missing"));
    EXPECT_THAT(complaint([] { entry(replaced(goodEntry, "[0,0.5,1,1]", "3")); }),
        testing::StartsWith("entry.background"));
    EXPECT_THAT(complaint([] { entry(replaced(goodEntry, R"({"type":"spacer"})", "{}")); }),
        testing::StartsWith("entry.view"));
}

TEST(Result, aTimelineIsReadAsItIsWritten)
{
    const WidgetTimeline timeline{
        .entries = {goodOne(), goodOne()},
        .reload = {.date = Date{std::chrono::seconds{1'700'000'900}}},
    };
    const std::string text = write(timeline).dump();
    EXPECT_THAT(text, testing::EndsWith(R"(],"reload":{"policy":"after","date":1700000900.0}})"));
    EXPECT_EQ(readText<WidgetTimeline>(text), timeline);
}

TEST(Result, severalTimelinesAreReadInTheOrderInWhichTheyAreWritten)
{
    const WidgetTimelines several{.timelines = {
                                      {.entries = {goodOne()}, .reload = {.date = Date{}}},
                                      {.entries = {}, .reload = {.date = Date{std::chrono::seconds{7}}}},
                                  }};
    const std::string text = write(several).dump();
    EXPECT_THAT(text, testing::StartsWith(R"({"timelines":[{"entries":[{)"));
    EXPECT_EQ(readText<WidgetTimelines>(text).timelines, several.timelines);
}

TEST(Result, alertsAreReadAsTheyAreWrittenAndLeftOutWhenNobodyAskedForThem)
{
    WidgetTimelines answer{.timelines = {}};
    EXPECT_EQ(write(answer).dump(), R"({"timelines":[]})");
    answer.alerts.emplace();
    EXPECT_EQ(write(answer).dump(), R"({"timelines":[],"alerts":[]})");
    const Alert pass{
        .id = "overhead/4007f0",
        .at = Date{std::chrono::milliseconds{1'700'000'000'250}},
        .title = "Look up",
        .body = "BAW117 passes.",
        .url = URL::parse("skyvane://aircraft/4007f0"),
    };
    answer.alerts = {{pass, {.id = "b", .at = Date{}, .title = "", .body = ""}}};
    const std::string text = write(answer).dump();
    EXPECT_EQ(text,
        R"({"timelines":[],"alerts":[{"id":"overhead/4007f0","at":1700000000.25,"title":"Look up",)"
        R"("body":"BAW117 passes.","url":"skyvane://aircraft/4007f0"},)"
        R"({"id":"b","at":0.0,"title":"","body":"","url":null}]})");
    EXPECT_EQ(readText<WidgetTimelines>(text).alerts, answer.alerts);
}

TEST(Result, anUnknownReloadPolicyIsRefused)
{
    EXPECT_EQ(complaint([&] {
        readText<WidgetTimeline>(R"({"entries":[],"reload":{"policy":"never","date":1}})");
    }),
        "reload: is of an unknown policy");
    EXPECT_EQ(complaint([&] { readText<WidgetTimeline>(R"({"entries":[],"reload":{"date":1}})"); }),
        "reload.policy: is missing");
}

TEST(Result, familiesThatThisHostDoesNotKnowArePassedOver)
{
    const WidgetInfo expected{
        .kind = "a.b",
        .displayName = "B",
        .description = "",
        .families = {WidgetFamily::large, WidgetFamily::small},
    };
    EXPECT_THAT(
        readText<WidgetList>(
            R"({"widgets":[{"kind":"a.b","displayName":"B","description":"","families":["huge","large","small"]}]})")
            .widgets,
        testing::ElementsAre(expected));
    EXPECT_EQ(expected.shortName(), "b");
}

TEST(Result, aListIsWrittenWithTheProtocolsVersion)
{
    const WidgetInfo widget{
        .kind = "a.b",
        .displayName = "Say \"B\"",
        .description = "",
        .families = {WidgetFamily::small, WidgetFamily::large},
    };
    EXPECT_EQ(write(WidgetList{.widgets = {widget}}).dump(),
        R"({"protocol":1,"widgets":[{"kind":"a.b","displayName":"Say \"B\"","description":"",)"
        R"("families":["small","large"]}]})");
    EXPECT_EQ(write(WidgetList{}).dump(), R"({"protocol":1,"widgets":[]})");
}

TEST(Result, datesAreSecondsToTheMillisecond)
{
    const auto date = [](std::int64_t milliseconds) {
        return write(Date{std::chrono::milliseconds{milliseconds}}).dump();
    };
    EXPECT_EQ(date(1700000000001), "1700000000.001");
    EXPECT_EQ(date(1700000000999), "1700000000.999");
    EXPECT_EQ(date(-1), "-0.001");
}

} // namespace skyvane::Protocol
