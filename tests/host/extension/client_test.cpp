#include "host/extension/client.h"

#include "tests/host/extension/fake_extension.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

const WidgetTarget clock{.kind = "org.example.clock", .family = WidgetFamily::small};

std::string failure(const ExtensionProgram& program)
{
    try {
        ExtensionClient client{program};
        client.ask(Protocol::ListCall{});
        client.ask(Protocol::TimelineCall{.params = clock});
        return "none";
    } catch (const ExtensionError& error) {
        return error.what();
    }
}

std::string failure(const std::string& behaviour)
{
    return failure(test::FakeExtension{behaviour}.program());
}

} // namespace

TEST(ExtensionClient, asksOneQuestionAfterAnother)
{
    const test::FakeExtension extension{"good"};
    ExtensionClient client{extension.program()};
    EXPECT_EQ(client.ask(Protocol::ListCall{}).widgets.size(), 2U);
    EXPECT_EQ(client.ask(Protocol::TimelineCall{.params = clock}).entries.size(), 1U);
    EXPECT_EQ(
        client.ask(Protocol::SnapshotCall{.params = {.target = clock, .isPreview = true}}).entry.url->text(),
        "skyvane://open");
}

TEST(ExtensionClient, aMissingProgramCannotBeStarted)
{
    EXPECT_EQ(failure(ExtensionProgram{.path = "/nowhere/extension"}),
        "the widget extension cannot be started: /nowhere/extension");
}

TEST(ExtensionClient, aCrashIsTold)
{
    EXPECT_EQ(failure("crashing"), "the widget extension crashed");
    EXPECT_EQ(failure("crashing-later"), "the widget extension crashed");
}

TEST(ExtensionClient, anEndWithoutAnAnswerIsTold)
{
    EXPECT_EQ(failure("ending"), "the widget extension ended without an answer");
}

TEST(ExtensionClient, silenceIsWaitedForNoLongerThanItMay)
{
    EXPECT_EQ(failure("silent"), "the widget extension did not answer within 0.2 s");
}

TEST(ExtensionClient, nonsenseIsTold)
{
    EXPECT_THAT(failure("babbling"), testing::StartsWith("the widget extension answered nonsense: "));
    EXPECT_EQ(
        failure("misnumbering"), "the widget extension answered nonsense: id: is that of another request");
    EXPECT_THAT(failure("mistyping"),
        testing::StartsWith("the widget extension answered nonsense: entries[0].date: "));
}

TEST(ExtensionClient, moreThanAnAnswerMayHoldIsRefused)
{
    EXPECT_EQ(failure("huge"), "the widget extension's answer is larger than 4352 KiB");
    EXPECT_EQ(failure("endless"), "the widget extension's answer is larger than 4352 KiB");
}

TEST(ExtensionClient, aRefusalIsToldInTheExtensionsWords)
{
    EXPECT_EQ(failure("refusing"), "the widget extension refused: no such kind");
}

} // namespace skyvane
