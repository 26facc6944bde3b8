#include "ui/layout/share_space.h"

#include "tests/ui/layout/infinity.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>

namespace skyvane {

namespace {

struct Row {
    std::string situation;
    double space;
    std::vector<Claim> claims;
    std::vector<double> offers;
};

Claim rigid(double length)
{
    return {.least = length, .most = length};
}
Claim elastic(double most)
{
    return {.least = 0, .most = most};
}
Claim greedy()
{
    return {.least = 0, .most = infinity};
}
Claim gap(double minimum)
{
    return {.least = minimum, .most = infinity, .isSpacer = true};
}

std::vector<double> shared(const Row& row)
{
    return shareSpace(row.space, row.claims, [&](std::size_t child, double offer) {
        return std::clamp(offer, row.claims[child].least, row.claims[child].most);
    });
}

class ShareSpaceTable : public testing::TestWithParam<Row> { };

const std::vector<Row> rows{
    {"NoChildren", 100, {}, {}},
    {"OneChildIsOfferedAll", 100, {elastic(30)}, {100}},
    {"EqualChildrenShareEqually", 90, {greedy(), greedy(), greedy()}, {30, 30, 30}},
    {"TheShortTextKeepsItsWidthAndTheLongOneGetsTheRest", 100, {elastic(90), elastic(20)}, {80, 50}},
    {"TheRigidIsAskedFirstWhereverItStands", 100, {greedy(), rigid(30), greedy()}, {35, 100.0 / 3, 35}},
    {"WhatTheShortLeaveGoesToTheLonger", 120, {elastic(10), elastic(30), elastic(200)}, {40, 55, 80}},
    {"OverdrawnSpaceIsNoNegativeOffer", 20, {rigid(30), greedy()}, {10, 0}},
    {"TheSpacerTakesWhatIsLeft", 100, {elastic(20), gap(0), elastic(30)}, {50, 50, 80}},
    {"TheSpacersDivideEqually", 100, {gap(0), rigid(40), gap(0)}, {30, 100, 30}},
    {"TheMinimumOfASpacerIsSetAsideFirst", 100, {elastic(200), gap(8)}, {92, 8}},
    {"ASpacerNeverFallsBelowItsMinimum", 10, {rigid(30), gap(8)}, {2, 8}},
    {"AMinimumWithinTheEqualShareChangesNothing", 100, {gap(10), rigid(60), gap(0)}, {20, 90, 20}},
    {"AMinimumBeyondTheEqualShareIsMetAndTheOthersDivideTheRest", 100, {gap(30), rigid(60), gap(0), gap(0)},
        {30, 70, 5, 5}},
    {"NothingToShare", 0, {elastic(20), greedy(), gap(0)}, {0, 0, 0}},
    {"EverythingForEveryone", infinity, {elastic(20), greedy(), gap(4)}, {infinity, infinity, infinity}},
};

} // namespace

TEST_P(ShareSpaceTable, offersEachChildItsShare)
{
    EXPECT_THAT(shared(GetParam()), testing::Pointwise(testing::DoubleEq(), GetParam().offers));
}

INSTANTIATE_TEST_SUITE_P(
    , ShareSpaceTable, testing::ValuesIn(rows), [](const auto& row) { return row.param.situation; });

TEST(ShareSpace, asksOnlyForOffersThatItThenMakes)
{
    const std::vector<Claim> claims{greedy(), rigid(10), gap(5)};
    std::vector<std::pair<std::size_t, double>> asked;
    shareSpace(65, claims, [&](std::size_t child, double offer) {
        asked.emplace_back(child, offer);
        return child == 1 ? 10 : offer;
    });
    EXPECT_THAT(
        asked, testing::ElementsAre(std::pair{std::size_t{1}, 30.0}, std::pair{std::size_t{0}, 50.0}));
}

} // namespace skyvane
