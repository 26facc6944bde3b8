#include "companion/position/location_service.h"

#include "tests/companion/position/fake_location_service.h"
#include "tests/session/message_bus.h"
#include "tests/session/wait_for.h"

#include <gmock/gmock.h>

#include <limits>

namespace skyvane {

namespace {

using namespace std::chrono_literals;
using Failure = LocationService::Failure;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class LocationServiceTest : public testing::Test {
protected:
    ~LocationServiceTest() override
    {
        m_service.reset();
        QDBusConnection::disconnectFromBus("companion");
    }

    void ask(const LocationService::Patience& patience = {.good = 20s, .any = 20s})
    {
        m_service.emplace(QDBusConnection::connectToBus(bus.address(), "companion"), patience);
        QObject::connect(&*m_service, &LocationService::located, [this](const LocationFix& fix) {
            located = fix.position;
            accuracy = fix.accuracy;
        });
        QObject::connect(&*m_service, &LocationService::improving,
            [this](const LocationFix& best) { improvements.push_back(best.accuracy); });
        QObject::connect(
            &*m_service, &LocationService::failed, [this](Failure reason) { failures.push_back(reason); });
        m_service->ask();
    }

    bool isAnswered()
    {
        return test::waitFor([&] { return located || !failures.empty(); });
    }

    LocationService& service() { return *m_service; }

    test::MessageBus bus;
    std::optional<Coordinate> located;
    std::optional<double> accuracy;
    std::vector<std::optional<double>> improvements;
    std::vector<Failure> failures;

private:
    std::optional<LocationService> m_service;
};

constexpr Coordinate lisbon{.latitude = 38.71667, .longitude = -9.13333};

} // namespace

TEST_F(LocationServiceTest, tellsThePlaceAndLeavesTheServiceInPeace)
{
    test::FakeLocationService fake{bus.address()};
    fake.fix = lisbon;
    ask();
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(located, lisbon);
    EXPECT_TRUE(failures.empty());
    EXPECT_FALSE(service().isAsking());
    ASSERT_TRUE(test::waitFor([&] { return fake.calls.contains("Stop"); }));
    EXPECT_THAT(fake.calls,
        ElementsAre("GetClient", "DesktopId org.skyvane.Companion", "RequestedAccuracyLevel 8", "Start",
            "GetAll", "Stop"));
}

TEST_F(LocationServiceTest, waitsForAGoodFixAndTellsOfTheOnesBefore)
{
    test::FakeLocationService fake{bus.address()};
    fake.fix = Coordinate{.latitude = 50.1, .longitude = 8.6};
    fake.accuracy = 25000;
    ask();
    ASSERT_TRUE(test::waitFor([&] { return improvements.size() == 1; }));
    EXPECT_FALSE(located);
    EXPECT_EQ(improvements.front(), 25000);
    fake.accuracy = 40000;
    fake.tellFix();
    ASSERT_TRUE(test::waitFor([&] { return improvements.size() == 2; }));
    EXPECT_EQ(improvements.back(), 25000) << "the better one stands";
    fake.fix = lisbon;
    fake.accuracy = 30;
    fake.tellFix();
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(located, lisbon);
    EXPECT_EQ(accuracy, 30);
    EXPECT_TRUE(failures.empty());
}

TEST_F(LocationServiceTest, takesTheBestFixThatCameInTime)
{
    test::FakeLocationService fake{bus.address()};
    fake.fix = lisbon;
    fake.accuracy = 1001;
    ask({.good = 1s, .any = 20s});
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(located, lisbon);
    EXPECT_EQ(accuracy, 1001);
    EXPECT_EQ(improvements.size(), 1U);
}

TEST_F(LocationServiceTest, takesAnyFixOnceItHasWaitedForAGoodOne)
{
    test::FakeLocationService fake{bus.address()};
    ask({.good = 50ms, .any = 20s});
    ASSERT_TRUE(test::waitFor([&] { return fake.calls.contains("Start"); }));
    EXPECT_FALSE(test::waitFor([&] { return located || !failures.empty(); }, 200ms));
    fake.fix = lisbon;
    fake.accuracy = 25000;
    fake.tellFix();
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(located, lisbon);
}

TEST_F(LocationServiceTest, aFixOfUnknownAccuracyIsNoGoodOne)
{
    test::FakeLocationService fake{bus.address()};
    fake.fix = lisbon;
    for (const double unknown : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
        located.reset();
        improvements.clear();
        fake.accuracy = unknown;
        ask({.good = 1s, .any = 20s});
        ASSERT_TRUE(isAnswered());
        EXPECT_EQ(located, lisbon);
        EXPECT_EQ(accuracy, std::nullopt) << unknown;
        EXPECT_EQ(improvements.size(), 1U);
    }
}

TEST_F(LocationServiceTest, mayBeAskedAgain)
{
    test::FakeLocationService fake{bus.address()};
    fake.fix = lisbon;
    ask();
    ASSERT_TRUE(isAnswered());
    located.reset();
    fake.fix = Coordinate{.latitude = 1, .longitude = 2};
    service().ask();
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(located, fake.fix);
}

TEST_F(LocationServiceTest, saysThatNoneIsRunning)
{
    ask();
    ASSERT_TRUE(isAnswered());
    EXPECT_THAT(failures, ElementsAre(Failure::notRunning));
}

TEST_F(LocationServiceTest, saysThatThereIsNoBusAtAll)
{
    LocationService withoutBus{QDBusConnection::connectToBus("unix:path=/nowhere", "companion")};
    QObject::connect(
        &withoutBus, &LocationService::failed, [this](Failure reason) { failures.push_back(reason); });
    withoutBus.ask();
    ASSERT_TRUE(isAnswered());
    EXPECT_THAT(failures, ElementsAre(Failure::notRunning));
}

TEST_F(LocationServiceTest, saysThatItWasDenied)
{
    test::FakeLocationService fake{bus.address()};
    fake.refusal = "org.freedesktop.DBus.Error.AccessDenied";
    ask();
    ASSERT_TRUE(isAnswered());
    EXPECT_THAT(failures, ElementsAre(Failure::denied));
}

TEST_F(LocationServiceTest, saysThatNoFixCameInTime)
{
    test::FakeLocationService fake{bus.address()};
    ask({.good = 100ms, .any = 300ms});
    ASSERT_TRUE(isAnswered());
    EXPECT_THAT(failures, ElementsAre(Failure::noFixInTime));
    EXPECT_TRUE(test::waitFor([&] { return fake.calls.contains("Start") && fake.calls.contains("Stop"); }));
}

TEST_F(LocationServiceTest, aServiceThatNeverAnswersIsNotWaitedForLongerEither)
{
    test::FakeLocationService fake{bus.address()};
    fake.silentMethod = "GetClient";
    ask({.good = 100ms, .any = 300ms});
    ASSERT_TRUE(isAnswered());
    EXPECT_THAT(failures, ElementsAre(Failure::noFixInTime));
}

TEST_F(LocationServiceTest, saysThatTheServiceWentWhileItWasAsked)
{
    test::FakeLocationService fake{bus.address()};
    ask();
    ASSERT_TRUE(test::waitFor([&] { return fake.calls.contains("Start"); }));
    fake.leave();
    ASSERT_TRUE(isAnswered());
    EXPECT_THAT(failures, ElementsAre(Failure::notRunning));
}

TEST_F(LocationServiceTest, saysThatTheServiceFailed)
{
    test::FakeLocationService fake{bus.address()};
    fake.refusal = "org.freedesktop.DBus.Error.Failed";
    ask();
    ASSERT_TRUE(isAnswered());
    EXPECT_THAT(failures, ElementsAre(Failure::other));
}

TEST_F(LocationServiceTest, aPlaceThatIsNotOnTheGlobeIsNone)
{
    test::FakeLocationService fake{bus.address()};
    for (const double latitude : {91.0, std::numeric_limits<double>::quiet_NaN()}) {
        failures.clear();
        fake.fix = Coordinate{.latitude = latitude, .longitude = 0};
        ask();
        ASSERT_TRUE(isAnswered());
        EXPECT_THAT(failures, ElementsAre(Failure::other)) << latitude;
    }
}

TEST_F(LocationServiceTest, aQuestionThatIsCancelledGetsNoAnswer)
{
    test::FakeLocationService fake{bus.address()};
    ask({.good = 100ms, .any = 200ms});
    ASSERT_TRUE(test::waitFor([&] { return fake.calls.contains("Start"); }));
    service().cancel();
    EXPECT_TRUE(test::waitFor([&] { return fake.calls.contains("Stop"); }));
    EXPECT_FALSE(test::waitFor([&] { return located || !failures.empty(); }, 400ms));
}

} // namespace skyvane
