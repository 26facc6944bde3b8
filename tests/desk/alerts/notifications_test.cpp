#include "desk/alerts/notifications.h"

#include "tests/session/fake_notification_portal.h"
#include "tests/session/journal.h"
#include "tests/session/private_bus.h"
#include "tests/session/wait_for.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace skyvane {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NotificationsTest : public testing::Test {
protected:
    NotificationsTest()
    {
        QObject::connect(
            &notifications, &Notifications::activated, [this](const QString& key, const QString& token) {
                clicks.push_back(key.toStdString() + "|" + token.toStdString());
            });
    }

    void show(const char* key, const char* body = "<b>A</b> & B")
    {
        notifications.show({.key = key, .title = "Title", .body = body});
    }

    test::Journal journal;
    test::PrivateBus session;
    Notifications notifications{session.connection(), "org.skyvane.Host"};
    std::vector<std::string> clicks;
};

} // namespace

TEST_F(NotificationsTest, areThePortalsWhereThereIsOne)
{
    test::FakeNotificationPortal portal{session.other()};
    const test::FakeNotificationService service{session.other()};
    show("one");
    show("two");
    ASSERT_TRUE(test::waitFor([&] { return portal.shown.size() == 2; }));
    EXPECT_EQ(portal.shown[0].key, "one");
    EXPECT_EQ(portal.shown[0].title, "Title");
    EXPECT_EQ(portal.shown[0].body, "<b>A</b> & B");
    EXPECT_EQ(portal.shown[1].key, "two");
    EXPECT_THAT(service.shown, IsEmpty());
}

TEST_F(NotificationsTest, aClickOnThePortalsBringsItsToken)
{
    test::FakeNotificationPortal portal{session.other()};
    show("one");
    ASSERT_TRUE(test::waitFor([&] { return portal.shown.size() == 1; }));
    portal.click("one", {});
    portal.click("one", {QVariantMap{{"activation-token", "token7"}}});
    portal.click("one", {}, "another action");
    ASSERT_TRUE(test::waitFor([&] { return clicks.size() == 2; }));
    EXPECT_THAT(clicks, ElementsAre("one|", "one|token7"));
}

TEST_F(NotificationsTest, whatThePortalRefusesIsTheServices)
{
    const test::FakeNotificationPortal portal{session.other(), /*takesThem=*/false};
    const test::FakeNotificationService service{session.other()};
    show("one");
    EXPECT_TRUE(test::waitFor([&] { return service.shown.size() == 1; }));
    EXPECT_EQ(portal.refused, 1);
}

TEST_F(NotificationsTest, areTheServicesWithoutAPortal)
{
    const test::FakeNotificationService service{session.other()};
    show("one");
    ASSERT_TRUE(test::waitFor([&] { return service.shown.size() == 1; }));
    EXPECT_EQ(service.shown[0].title, "Title");
    EXPECT_EQ(service.shown[0].body, "‹b›A‹/b› & B");
    EXPECT_THAT(service.shown[0].actions, ElementsAre("default", "Open"));
}

TEST_F(NotificationsTest, aServiceThatReadsMarkupIsGivenNone)
{
    const test::FakeNotificationService service{session.other(), {"body", "body-markup"}};
    show("one");
    ASSERT_TRUE(test::waitFor([&] { return service.shown.size() == 1; }));
    EXPECT_EQ(service.shown[0].body, "&lt;b&gt;A&lt;/b&gt; &amp; B");
    EXPECT_THAT(service.shown[0].actions, IsEmpty());
}

TEST_F(NotificationsTest, aClickOnTheServicesBringsItsToken)
{
    test::FakeNotificationService service{session.other()};
    show("one");
    show("two");
    ASSERT_TRUE(test::waitFor([&] { return service.shown.size() == 2; }));
    // Whoever knows a number clicks; the answer with it may still be under way.
    test::waitFor([&] { return false; }, std::chrono::milliseconds{100});
    service.click(2, "token7");
    service.click(1, {});
    service.click(1, {}, "another action");
    service.click(77, "token8");
    ASSERT_TRUE(test::waitFor([&] { return clicks.size() == 2; }));
    EXPECT_THAT(clicks, ElementsAre("two|token7", "one|"));
}

TEST_F(NotificationsTest, oneOfAKeyThatStandsIsReplaced)
{
    test::FakeNotificationService service{session.other()};
    show("one");
    ASSERT_TRUE(test::waitFor([&] { return service.shown.size() == 1; }));
    test::waitFor([&] { return false; }, std::chrono::milliseconds{100});
    show("one", "again");
    ASSERT_TRUE(test::waitFor([&] { return service.shown.size() == 2; }));
    EXPECT_EQ(service.shown[1].replaced, 1U);
}

TEST_F(NotificationsTest, withoutAnyServiceNothingIsShownAndTheJournalSaysSo)
{
    show("one");
    EXPECT_TRUE(test::waitFor([&] { return !test::Journal::lines().empty(); }));
    EXPECT_THAT(test::Journal::lines().front(), testing::StartsWith("no notification service: "));
    const test::FakeNotificationService service{session.other()};
    show("two");
    EXPECT_TRUE(test::waitFor([&] { return service.shown.size() == 1; }));
}

} // namespace skyvane
