#include "tests/widgets/extension/scenario.h"
#include "ui/layout/widget_container.h"
#include "widgets/extension/message.h"
#include "widgets/skyvane_widget_bundle.h"

#include <chrono>
#include <future>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace skyvane::test {

namespace {

/// A second is promised; a machine that tests on every core, with sanitizers, gets ten.
constexpr std::chrono::seconds soon{10};

using namespace std::chrono_literals;
using std::chrono::steady_clock;

} // namespace

TEST_F(ExtensionScenario, listsTheWidgetsOfTheBundle)
{
    stage.ask(7, "widgets.list");
    const json answer = stage.hear();
    EXPECT_EQ(answer["jsonrpc"], "2.0");
    EXPECT_EQ(answer["id"], 7);
    EXPECT_EQ(answer["result"]["protocol"], 1);
    std::vector<std::string> kinds;
    for (const Widget& widget : SkyvaneWidgetBundle{}.body())
        kinds.push_back(widget.kind);
    ASSERT_EQ(answer["result"]["widgets"].size(), kinds.size());
    for (std::size_t index = 0; index < kinds.size(); ++index)
        EXPECT_EQ(answer["result"]["widgets"][index]["kind"], kinds[index]);
}

TEST_F(ExtensionScenario, placeholdersAndPreviewsAreTheSampleAndNeedNoNetwork)
{
    setHome();
    for (const Widget& widget : SkyvaneWidgetBundle{}.body()) {
        for (const char* method : {"widgets.placeholder", "widgets.snapshot"}) {
            const std::string_view family = WidgetContainer::name(widget.supportedFamilies.front());
            stage.ask("sample", method, {{"kind", widget.kind}, {"family", family}, {"isPreview", true}});
            const json answer = stage.hear();
            EXPECT_EQ(answer["result"]["entry"]["isSample"], true) << answer;
            EXPECT_EQ(answer["result"]["entry"]["url"], "skyvane://open");
        }
    }
    EXPECT_EQ(stage.server().connectionCount(), 0U);
}

TEST_F(ExtensionScenario, whatIsNoRequestIsRefusedAndTheNextLineIsRead)
{
    stage.sayLine("not JSON");
    expectError(-32700, nullptr);
    stage.sayLine("");
    expectError(-32700, nullptr);
    stage.sayLine(std::string(1'000'000, 'x'));
    expectError(-32700, nullptr, "64 KiB");
    stage.sayLine("[]");
    expectError(-32600, nullptr);
    stage.sayLine(R"([{"jsonrpc":"2.0","id":1,"method":"widgets.list"}])");
    expectError(-32600, nullptr);
    stage.sayLine(R"({"id":1,"method":"widgets.list"})");
    expectError(-32600, nullptr, "jsonrpc");
    stage.sayLine(R"({"jsonrpc":"2.0","id":1})");
    expectError(-32600, nullptr, "method");
    stage.sayLine(R"({"jsonrpc":"2.0","id":[1],"method":"widgets.list"})");
    expectError(-32600, nullptr, "id");
    expectStillAnswers();
}

TEST_F(ExtensionScenario, whatCannotBeServedIsRefusedByName)
{
    stage.ask(1, "widgets.remove");
    expectError(-32601, 1, "widgets.remove");
    stage.ask(2, "cancel", {{"id", 1}});
    expectError(-32601, 2, "cancel");
    stage.ask(3, "widgets.timeline");
    expectError(-32602, 3, "kind");
    stage.ask(4, "widgets.timeline", {{"kind", 1}, {"family", "small"}});
    expectError(-32602, 4, "kind");
    stage.ask(5, "widgets.timeline", {{"kind", "org.skyvane.widgets.clock"}, {"family", "small"}});
    expectError(-32602, 5, "org.skyvane.widgets.clock");
    stage.ask(6, "widgets.timeline", {{"kind", radar["kind"]}});
    expectError(-32602, 6, "family");
    stage.ask(7, "widgets.timeline", {{"kind", radar["kind"]}, {"family", "huge"}});
    expectError(-32602, 7, "huge");
    stage.ask(8, "widgets.timeline", {{"kind", radar["kind"]}, {"family", "large"}});
    expectError(-32602, 8, "large");
    stage.ask(9, "widgets.snapshot", {{"kind", radar["kind"]}, {"family", "small"}, {"isPreview", 1}});
    expectError(-32602, 9, "isPreview");
    stage.ask(10, "widgets.list", json::array());
    expectError(-32602, 10, "params");
    stage.ask(11, "widgets.timelines", {{"widgets", json::array()}});
    expectError(-32602, 11, "widgets");
    stage.ask(12, "widgets.timelines", {{"widgets", std::vector<json>(17, radar)}});
    expectError(-32602, 12, "1 to 16");
    stage.ask(13, "widgets.timelines", {{"widgets", {radar, {{"kind", "x"}, {"family", "small"}}}}});
    expectError(-32602, 13, "widgets[1]");
    expectStillAnswers();
}

TEST_F(ExtensionScenario, notificationsAreNeverAnswered)
{
    stage.sayLine(R"({"jsonrpc":"2.0","method":"widgets.list"})");
    stage.sayLine(R"({"jsonrpc":"2.0","method":"unheard of","params":[]})");
    stage.sayLine(R"({"jsonrpc":"2.0","method":"cancel"})");
    stage.sayLine(R"({"jsonrpc":"2.0","method":"cancel","params":{"id":{}}})");
    stage.cancel("nobody");
    expectStillAnswers();
}

TEST_F(ExtensionScenario, theIdentityComesBackAsItWas)
{
    for (const json& id : {json(1), json(-1), json(18446744073709551615U), json(1.5),
             json("text \"\\\n\u00e9"), json("1"), json(nullptr)}) {
        stage.ask(id, "widgets.list");
        const json answer = stage.hear();
        EXPECT_EQ(answer["id"].dump(), id.dump());
    }
}

TEST_F(ExtensionScenario, anIdentityOfAnySizeComesBackCharacterForCharacter)
{
    for (const std::string& id : {std::string{"123456789012345678901234567890"}, std::string{"1.50e+3"},
             std::string{R"("\u0061\/b")"}, '"' + std::string(60'000, 'i') + '"'}) {
        stage.sayLine(R"({"jsonrpc":"2.0","method":"widgets.list","id":)" + id + "}");
        EXPECT_THAT(stage.hearLine(), testing::StartsWith(R"({"jsonrpc":"2.0","id":)" + id + ",\"result\":"));
    }
}

TEST_F(ExtensionScenario, aCancellationIsHeardWhileNobodyReads)
{
    setHome();
    const auto left = std::make_shared<std::promise<void>>();
    stage.server().handle(firstSource, [left](const auto&, Connection& connection) {
        try {
            connection.stall();
        } catch (const ConnectionGone&) {
            left->set_value();
            throw;
        }
    });
    stage.ask("slow", "widgets.timeline", radar);
    ASSERT_TRUE(stage.server().waitForRequests(1));
    constexpr int enough = 40; // Answers to fill every pipe.
    for (int id = 0; id < enough; ++id)
        stage.ask(id, "widgets.placeholder", radar);
    stage.cancel("slow");
    EXPECT_EQ(left->get_future().wait_for(soon), std::future_status::ready) << "the transfer goes on";
    for (int id = 0; id < enough; ++id)
        EXPECT_EQ(stage.hear()["id"], id);
    expectError(-32800, "slow");
}

TEST_F(ExtensionScenario, requestsOverlap)
{
    setHome();
    stage.server().handle(firstSource, &stalled);
    stage.ask("slow", "widgets.timeline", radar);
    stage.ask("slow too", "widgets.snapshot", radar);
    ASSERT_TRUE(stage.server().waitForRequests(2));
    stage.ask("quick", "widgets.placeholder", radar);
    EXPECT_EQ(stage.hear()["id"], "quick");
    stage.server().release();
    const std::set<std::string> rest{
        stage.hear()["id"].get<std::string>(), stage.hear()["id"].get<std::string>()};
    EXPECT_EQ(rest, (std::set<std::string>{"slow", "slow too"}));
}

TEST_F(ExtensionScenario, aCancelledRequestIsAnsweredAtOnceAndTheOthersGoOn)
{
    setHome();
    stage.server().handle(firstSource, &stalled);
    stage.ask(1, "widgets.timeline", radar);
    stage.ask("1", "widgets.timeline", radar);
    ASSERT_TRUE(stage.server().waitForRequests(2));
    const auto start = steady_clock::now();
    stage.cancel(1);
    expectError(-32800, 1, "cancelled");
    EXPECT_LT(steady_clock::now() - start, 200ms);
    stage.server().release();
    const json answer = stage.hear();
    EXPECT_EQ(answer["id"], "1");
    EXPECT_TRUE(answer.contains("result"));
    EXPECT_EQ(stage.server().requests().size(), 2U) << "a cancelled request asks no second source";
}

TEST_F(ExtensionScenario, sixtyFourRequestsRunAtOnceAndNoMore)
{
    setHome();
    stage.server().handle(firstSource, &stalled);
    for (int id = 1; id <= 65; ++id)
        stage.ask(id, "widgets.timeline", radar);
    expectError(-32000, 65, "too many requests");
    ASSERT_TRUE(stage.server().waitForRequests(64));
    stage.cancel(1);
    expectError(-32800, 1);
    stage.ask(66, "widgets.timeline", radar);
    ASSERT_TRUE(stage.server().waitForRequests(65));
    expectStillAnswers();
    stage.server().release();
    for (int count = 0; count < 64; ++count)
        EXPECT_TRUE(stage.hear().contains("result"));
}

TEST_F(ExtensionScenario, theEndOfInputCancelsWhatRuns)
{
    setHome();
    stage.server().handle(firstSource, &stalled);
    for (const int id : {1, 2, 3})
        stage.ask(id, "widgets.timeline", radar);
    ASSERT_TRUE(stage.server().waitForRequests(3));
    stage.closeInput();
    EXPECT_EQ(stage.exitStatus(soon), 0);
    std::set<int> cancelled;
    for (int count = 0; count < 3; ++count) {
        const json answer = stage.hear();
        EXPECT_EQ(answer["error"]["code"], -32800) << answer;
        cancelled.insert(answer["id"].get<int>());
    }
    EXPECT_EQ(cancelled, (std::set{1, 2, 3}));
    EXPECT_TRUE(stage.hear().is_null());
}

TEST_F(ExtensionScenario, anEmptyInputIsEnough)
{
    stage.closeInput();
    EXPECT_EQ(stage.exitStatus(soon), 0);
    EXPECT_TRUE(stage.hear().is_null());
}

TEST_F(ExtensionScenario, theEndOfInputIsNotDelayedByAHostThatDoesNotRead)
{
    stage.ask(0, "widgets.list");
    ASSERT_FALSE(stage.hear().is_null());
    for (int id = 1; id <= 40; ++id)
        stage.ask(id, "widgets.placeholder", radar);
    stage.closeInput();
    EXPECT_EQ(stage.exitStatus(soon), 0);
}

TEST_F(ExtensionScenario, itEndsWhenNobodyHearsIt)
{
    setHome();
    stage.server().handle(firstSource, &stalled);
    stage.ask(1, "widgets.timeline", radar);
    ASSERT_TRUE(stage.server().waitForRequests(1));
    stage.closeOutput();
    stage.ask(2, "widgets.list");
    EXPECT_EQ(stage.exitStatus(soon), 0);
}

} // namespace skyvane::test
