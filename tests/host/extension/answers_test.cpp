#include "host/extension/answers.h"

#include "tests/support/replaced.h"

#include "host/extension/error.h"
#include "ui/tree/build.h"

#include <gmock/gmock.h>

#include <functional>

namespace skyvane {

namespace {

using test::replaced;
const std::string goodEntry
    = R"({"date":1700000000.2504,"isSample":true,"background":[0,0.5,1,1],"url":"skyvane://open",
              "view":{"type":"spacer"}})";

WidgetEntry entry(const std::string& text)
{
    const JSON::Document document{R"({"entry":)" + text + "}"};
    return ExtensionAnswers::entry(document.root());
}

template <class Action>
std::string complaint(Action&& action)
{
    try {
        action();
        return "none";
    } catch (const JSON::DecodingError& error) {
        return error.what();
    } catch (const ExtensionError& error) {
        return error.what();
    }
}

std::string envelopeComplaint(const std::string& text)
{
    const JSON::Document document{text};
    return complaint([&] { ExtensionAnswers::result(document.root(), 4); });
}

} // namespace

TEST(ExtensionAnswers, anEntryIsReadWhole)
{
    const WidgetEntry expected{
        .date = Date{std::chrono::milliseconds{1'700'000'000'250}},
        .isSample = true,
        .view = spacer(),
        .background = {0, 0.5, 1, 1},
        .url = URL::parse("skyvane://open"),
    };
    EXPECT_EQ(entry(goodEntry), expected);
}

TEST(ExtensionAnswers, aUrlMayBeMissingOrNullOrNoUrl)
{
    EXPECT_EQ(entry(replaced(goodEntry, R"("url":"skyvane://open",)", "")).url, std::nullopt);
    EXPECT_EQ(entry(replaced(goodEntry, R"("skyvane://open")", "null")).url, std::nullopt);
    EXPECT_EQ(entry(replaced(goodEntry, "skyvane://open", "no url")).url, std::nullopt);
}

TEST(ExtensionAnswers, aMistypedOrMissingMemberIsNamed)
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

TEST(ExtensionAnswers, aTimelineIsReadWhole)
{
    const JSON::Document document{R"({"entries":[)" + goodEntry + "," + goodEntry
        + R"(],"reload":{"policy":"after","date":1700000900}})"};
    const WidgetTimeline timeline = ExtensionAnswers::timeline(document.root());
    EXPECT_THAT(timeline.entries, testing::ElementsAre(entry(goodEntry), entry(goodEntry)));
    EXPECT_EQ(timeline.reloadDate, Date{std::chrono::seconds{1'700'000'900}});
}

TEST(ExtensionAnswers, anUnknownReloadPolicyIsRefused)
{
    const JSON::Document document{R"({"entries":[],"reload":{"policy":"never","date":1}})"};
    EXPECT_EQ(
        complaint([&] { ExtensionAnswers::timeline(document.root()); }), "reload: is of an unknown policy");
}

TEST(ExtensionAnswers, familiesThatThisHostDoesNotKnowArePassedOver)
{
    const JSON::Document document{
        R"({"widgets":[{"kind":"a.b","displayName":"B","description":"","families":["huge","large","small"]}]})"};
    const WidgetInfo expected{
        .kind = "a.b",
        .displayName = "B",
        .description = "",
        .families = {WidgetFamily::large, WidgetFamily::small},
    };
    EXPECT_THAT(ExtensionAnswers::widgets(document.root()), testing::ElementsAre(expected));
    EXPECT_EQ(expected.shortName(), "b");
}

TEST(ExtensionAnswers, anAnswerIsThatToItsRequest)
{
    EXPECT_EQ(envelopeComplaint(R"({"jsonrpc":"2.0","id":4,"result":{}})"), "none");
    EXPECT_EQ(envelopeComplaint(R"({"jsonrpc":"2.0","id":5,"result":{}})"), "id: is that of another request");
    EXPECT_EQ(envelopeComplaint(R"({"jsonrpc":"1.0","id":4,"result":{}})"), "jsonrpc: expected \"2.0\"");
    EXPECT_EQ(envelopeComplaint(R"({"jsonrpc":"2.0","id":4})"), "result: is missing");
    EXPECT_EQ(envelopeComplaint(R"({"jsonrpc":"2.0","id":null,"error":{"code":1,"message":"no"}})"),
        "the widget extension refused: no");
}

} // namespace skyvane
