#include "widgets/sky_provider.h"

#include "core/config/shared_state.h"
#include "core/views/sample_entry.h"
#include "platform/files/files.h"
#include "platform/pinned.h"
#include "tests/core/sample_sky.h"
#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>

namespace skyvane {
namespace {

constexpr const char* oneAircraft = R"({"ac":[{"hex":"a","lat":1,"lon":2,"dst":3}]})";

class SkyProviderTest : public testing::Test {
protected:
    test::ScratchFolder scratch{};
    Pinned<HomeFolder> home{{scratch.path()}};
    Pinned<Date> clock{test::morning};
    int requestCount = 0;

    SkyProvider answering(std::string body)
    {
        return {.transport = [this, body = std::move(body)](const URLRequest&, const std::stop_token&) {
            ++requestCount;
            return URLResponse{.status = 200, .body = body};
        }};
    }

    SkyProvider failing()
    {
        return {.transport = [this](const URLRequest&, const std::stop_token&) -> URLResponse {
            ++requestCount;
            throw TransferError{"down"};
        }};
    }
};

const SharedState::Config full{
    .home = {.latitude = 51.5, .longitude = -0.12, .label = "Home"},
    .radiusNM = 1000,
    .distanceUnit = "km",
    .widgetColorHex = "no colour",
};

TEST_F(SkyProviderTest, thePlaceholderIsTheSample)
{
    EXPECT_EQ(failing().placeholder(), sampleEntry());
}

TEST_F(SkyProviderTest, aPreviewIsTheSampleAndAsksNobody)
{
    SharedState::write(full);
    EXPECT_EQ(answering(oneAircraft).getSnapshot(/*isPreview=*/true), sampleEntry());
    EXPECT_EQ(requestCount, 0);
}

TEST_F(SkyProviderTest, withoutAHomeTheEntryIsEmptyAndNobodyIsAsked)
{
    const SkyEntry expected{
        .date = test::morning,
        .aircraft = {},
        .radiusNM = 25.0,
        .home = std::nullopt,
        .isSample = false,
        .unit = "mi",
    };
    EXPECT_EQ(answering(oneAircraft).getSnapshot(/*isPreview=*/false), expected);
    EXPECT_EQ(requestCount, 0);
}

TEST_F(SkyProviderTest, theEntryCarriesTheConfigurationAsItStands)
{
    SharedState::write(full);
    const SkyEntry expected{
        .date = test::morning,
        .aircraft = {{.hex = "a", .lat = 1.0, .lon = 2.0, .distanceNM = 3.0}},
        .radiusNM = 1000,
        .home = full.home,
        .isSample = false,
        .unit = "km",
        .accentHex = "no colour",
    };
    const SkyEntry entry = answering(oneAircraft).getSnapshot(/*isPreview=*/false);
    EXPECT_EQ(entry, expected);
    EXPECT_EQ(entry.palette(), ScopePalette::standard());
}

TEST_F(SkyProviderTest, withoutAConfiguredUnitItIsStatuteMiles)
{
    SharedState::write({.home = full.home, .radiusNM = 25});
    EXPECT_EQ(answering(oneAircraft).getSnapshot(/*isPreview=*/false).unit, "mi");
}

TEST_F(SkyProviderTest, aFailingFeedIsAnEmptySkyOverTheConfiguredHome)
{
    SharedState::write(full);
    const SkyEntry entry = failing().getSnapshot(/*isPreview=*/false);
    EXPECT_TRUE(entry.aircraft.empty());
    EXPECT_EQ(entry.home, full.home);
    EXPECT_EQ(entry.radiusNM, 1000);
    EXPECT_EQ(entry.unit, "km");
    EXPECT_EQ(entry.accentHex, "no colour");
    EXPECT_FALSE(entry.isSample);
    EXPECT_EQ(requestCount, 2);
}

TEST_F(SkyProviderTest, aTimelineHoldsOneEntryAndReloadsAfterFiveMinutes)
{
    SharedState::write(full);
    const SkyProvider provider = answering(oneAircraft);
    const SkyTimeline timeline = provider.getTimeline();
    EXPECT_EQ(timeline.entries, std::vector{provider.getSnapshot(/*isPreview=*/false)});
    EXPECT_EQ(timeline.reloadAfter, test::morning + std::chrono::seconds{300});
}

TEST_F(SkyProviderTest, everyRequestReadsTheConfigurationAfresh)
{
    const SkyProvider provider = answering(oneAircraft);
    EXPECT_FALSE(provider.getSnapshot(/*isPreview=*/false).home);
    SharedState::write(full);
    EXPECT_TRUE(provider.getSnapshot(/*isPreview=*/false).home);
}

TEST_F(SkyProviderTest, cancellationIsNoEmptySky)
{
    SharedState::write(full);
    const SkyProvider provider{.transport
        = [](const URLRequest&, const std::stop_token&) -> URLResponse { throw CancellationError{}; }};
    EXPECT_THROW(provider.getTimeline(), CancellationError);
}

/// Straight over the home in two minutes, once turning and once not.
constexpr const char* twoOverhead = R"({"ac":[
    {"hex":"a","lat":51.3,"lon":-0.12,"alt_baro":36000,"gs":360,"track":0,"track_rate":0.03},
    {"hex":"b","lat":51.3,"lon":-0.12,"alt_baro":36000,"gs":360,"track":0,"track_rate":3}]})";

TEST_F(SkyProviderTest, whatIsWorthTellingIsFoundInTheSameAnswer)
{
    SharedState::write(full);
    const SkyAlertRules rules{.overhead = {{.elevationDeg = 45, .within = std::chrono::minutes{8}}}};
    const SkyTimeline timeline = answering(twoOverhead).getTimeline(rules);
    ASSERT_EQ(timeline.alerts.size(), 1U);
    EXPECT_EQ(timeline.alerts[0].id, "overhead/a");
    EXPECT_EQ(timeline.entries.at(0).aircraft.size(), 2U);
    EXPECT_EQ(requestCount, 1);
}

TEST_F(SkyProviderTest, rulesChangeNothingElse)
{
    SharedState::write(full);
    const SkyAlertRules rules{
        .emergency = true, .overhead = {{.elevationDeg = 45, .within = std::chrono::minutes{8}}}};
    const SkyTimeline with = answering(oneAircraft).getTimeline(rules);
    EXPECT_EQ(with, answering(oneAircraft).getTimeline());
    EXPECT_TRUE(failing().getTimeline(rules).alerts.empty());
}

} // namespace
} // namespace skyvane
