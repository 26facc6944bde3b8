#include "core/enrichment/photo_api.h"
#include "core/enrichment/route_api.h"
#include "core/feed/adsb.h"
#include "platform/pinned.h"
#include "tests/support/fault_server.h"
#include "tests/support/memory.h"
#include "tests/support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <optional>
#include <string>
#include <vector>

namespace skyvane::test {

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

constexpr const char* secondSource = "opendata.adsb.fi";
constexpr std::size_t mebibyte = std::size_t{1} << 20;

/// A source has eight seconds and a half; the rest is for a machine that tests on every core.
constexpr auto longestFetch = 8500ms + 6000ms;

/// What one fetch of aircraft came to, the first source being down.
struct Outcome {
    std::optional<std::size_t> count{};
    std::string message{};
    FetchCause cause{};
    steady_clock::duration duration{};
};

Outcome outcomeOf(const Fault& fault)
{
    const auto start = steady_clock::now();
    Outcome outcome;
    try {
        const HomeLocation home{.latitude = 51.5, .longitude = -0.12, .label = "Home"};
        outcome.count = ADSB::fetch(home, 25, FaultServer::towards(fault)).size();
    } catch (const FetchError& error) {
        outcome.message = error.message;
        outcome.cause = error.cause;
    }
    outcome.duration = steady_clock::now() - start;
    return outcome;
}

bool hasRoute(const Fault& fault)
{
    return RouteAPI::fetch("UAL123", FaultServer::towards(fault)).has_value();
}

bool hasPhoto(const Fault& fault)
{
    return PhotoAPI::fetch("a1b2c3", FaultServer::towards(fault)).has_value();
}

void expectAsTheFaultSays(const Fault& fault, const Outcome& outcome)
{
    SCOPED_TRACE(fault.name + ": " + outcome.message + " (" + outcome.cause.details + ")");
    EXPECT_LT(outcome.duration, longestFetch);
    const bool isDelivered = fault.outcome == Fault::Outcome::delivered;
    EXPECT_EQ(outcome.count, isDelivered ? std::optional<std::size_t>{1} : std::nullopt);
    if (fault.outcome == Fault::Outcome::refused) {
        EXPECT_EQ(outcome.message, std::string{secondSource} + " returned an error");
    }
    if (fault.outcome == Fault::Outcome::failed) {
        const std::string start = std::string{secondSource} + ": ";
        ASSERT_THAT(outcome.message, testing::StartsWith(start));
        EXPECT_THAT(outcome.message.substr(start.size()), testing::MatchesRegex("[A-Z][A-Za-z '();]+\\."));
        EXPECT_THAT(outcome.cause.details, testing::ContainsRegex(fault.words));
        EXPECT_NE(outcome.cause.problem, FetchProblem::other);
    }
}

/// Faults of one kind, each at its host.
struct Group {
    const char* name;
    std::vector<Fault> (*faults)();
};

class ServicesAmongFaults : public testing::TestWithParam<Group> {
protected:
    ScratchFolder scratch;
    CertificateAuthority authority{scratch.path() / "authority.pem"};
    std::vector<Fault> faults = GetParam().faults();
    FaultServer server{authority, faults};
    Pinned<Network> network{server.network()};
};

} // namespace

TEST_P(ServicesAmongFaults, everyQuickOneIsWhatItIsCalledAndCostsNoMoreThan256MiB)
{
    for (const Fault& fault : faults) {
        if (fault.isSlow)
            continue;
        SCOPED_TRACE(fault.name);
        const bool isDelivered = fault.outcome == Fault::Outcome::delivered;
        forgetMemoryPeak();
        const std::size_t before = memoryInUse();
        expectAsTheFaultSays(fault, outcomeOf(fault));
        EXPECT_EQ(hasRoute(fault), isDelivered);
        EXPECT_EQ(hasPhoto(fault), isDelivered);
        EXPECT_LT(memoryPeak() - std::min(before, memoryPeak()), 256 * mebibyte);
    }
}

INSTANTIATE_TEST_SUITE_P(Faults, ServicesAmongFaults,
    testing::Values(Group{"ofConnections", &connectionFaults}, Group{"ofAnswers", &answerFaults},
        Group{"ofCompression", &compressionFaults}, Group{"ofContents", &contentFaults}),
    [](const auto& group) { return group.param.name; });

TEST(ServicesAmongSlowFaults, areLeftAfterEightSeconds)
{
    const ScratchFolder scratch;
    const CertificateAuthority authority{scratch.path() / "authority.pem"};
    std::vector<Fault> slow = faults();
    std::erase_if(slow, [](const Fault& fault) { return !fault.isSlow; });
    const FaultServer server{authority, slow};
    const Pinned<Network> network{server.network()};

    std::vector<std::future<Outcome>> feeds;
    std::vector<std::future<bool>> lookups;
    for (const Fault& fault : slow) {
        feeds.push_back(std::async(std::launch::async, [&fault] { return outcomeOf(fault); }));
        lookups.push_back(std::async(std::launch::async, [&fault] { return hasRoute(fault); }));
        lookups.push_back(std::async(std::launch::async, [&fault] { return hasPhoto(fault); }));
    }
    for (std::size_t index = 0; index < slow.size(); ++index) {
        const Outcome outcome = feeds[index].get();
        expectAsTheFaultSays(slow[index], outcome);
        EXPECT_GE(outcome.duration, 7900ms) << slow[index].name;
    }
    for (auto& isThere : lookups)
        EXPECT_FALSE(isThere.get());
}

TEST(DescriptorsAmongFaults, areAllClosedAgain)
{
    const ScratchFolder scratch;
    const CertificateAuthority authority{scratch.path() / "authority.pem"};
    std::size_t before = 0;
    for (int round = 0; round < 2; ++round) {
        before = round == 0 ? 0 : openDescriptors(); // The first round opens what stays open for good.
        const std::vector<Fault> all = connectionFaults();
        const FaultServer server{authority, all};
        const Pinned<Network> network{server.network()};
        for (const Fault& fault : all) {
            if (!fault.isSlow)
                outcomeOf(fault);
        }
    }
    EXPECT_EQ(openDescriptors(), before);
}

} // namespace skyvane::test
