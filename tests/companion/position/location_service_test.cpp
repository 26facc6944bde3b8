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

    void ask(std::chrono::milliseconds limit = 20s)
    {
        m_service.emplace(QDBusConnection::connectToBus(bus.address(), "companion"), limit);
        QObject::connect(&*m_service, &LocationService::located,
            [this](const Coordinate& coordinate) { located = coordinate; });
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
    ask(300ms);
    ASSERT_TRUE(isAnswered());
    EXPECT_THAT(failures, ElementsAre(Failure::noFixInTime));
    EXPECT_TRUE(test::waitFor([&] { return fake.calls.contains("Start") && fake.calls.contains("Stop"); }));
}

TEST_F(LocationServiceTest, aServiceThatNeverAnswersIsNotWaitedForLongerEither)
{
    test::FakeLocationService fake{bus.address()};
    fake.silentMethod = "GetClient";
    ask(300ms);
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
    ask(200ms);
    ASSERT_TRUE(test::waitFor([&] { return fake.calls.contains("Start"); }));
    service().cancel();
    EXPECT_TRUE(test::waitFor([&] { return fake.calls.contains("Stop"); }));
    EXPECT_FALSE(test::waitFor([&] { return located || !failures.empty(); }, 400ms));
}

} // namespace skyvane
