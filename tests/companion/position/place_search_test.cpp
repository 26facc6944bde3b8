#include "companion/position/place_search.h"

#include "tests/session/wait_for.h"

#include <gmock/gmock.h>

#include <latch>
#include <memory>

namespace skyvane {

namespace {

using testing::ElementsAre;

std::vector<Place> twoPlaces()
{
    return {
        {.name = "Lisbon",
            .englishName = "Lisbon",
            .region = "Portugal",
            .countryCode = "PT",
            .coordinate = {}},
        {.name = "Lima", .englishName = "Lima", .region = "Peru", .countryCode = "PE", .coordinate = {}},
    };
}

struct Answers {
    explicit Answers(PlaceSearch& search)
    {
        QObject::connect(
            &search, &PlaceSearch::answered, [this](const QString& typed, const std::vector<Place>& places) {
                list.push_back(typed.toStdString() + ": " + std::to_string(places.size()));
            });
    }

    std::vector<std::string> list;
};

} // namespace

TEST(PlaceSearch, onlyTheLatestQuestionIsAnsweredOnceThePlacesAreLoaded)
{
    std::latch isAsked{1};
    PlaceSearch search{[&] {
        isAsked.wait();
        return twoPlaces();
    }};
    const Answers answers{search};
    search.ask("l");
    search.ask("lis");
    EXPECT_THAT(answers.list, ElementsAre());
    isAsked.count_down();
    ASSERT_TRUE(test::waitFor([&] { return !answers.list.empty(); }));
    EXPECT_THAT(answers.list, ElementsAre("lis: 1"));
}

TEST(PlaceSearch, thePlacesAreLoadedOnceAndThenAnsweredFromAtOnce)
{
    std::atomic<int> loads = 0;
    PlaceSearch search{[&] {
        ++loads;
        return twoPlaces();
    }};
    const Answers answers{search};
    search.prepare();
    search.ask("l");
    ASSERT_TRUE(test::waitFor([&] { return !answers.list.empty(); }));
    search.ask("lim");
    search.ask("x");
    EXPECT_THAT(answers.list, ElementsAre("l: 2", "lim: 1", "x: 0"));
    EXPECT_EQ(loads, 1);
}

TEST(PlaceSearch, theLastQuestionIsAnsweredAgainOnceThereAreMorePlaces)
{
    std::latch isAnswered{1};
    PlaceSearch search{{&twoPlaces, [&] {
                            isAnswered.wait();
                            std::vector<Place> more = twoPlaces();
                            more.front().otherNames = {"Ulissipo"};
                            return more;
                        }}};
    const Answers answers{search};
    search.ask("uli");
    ASSERT_TRUE(test::waitFor([&] { return answers.list.size() == 1; }));
    isAnswered.count_down();
    ASSERT_TRUE(test::waitFor([&] { return answers.list.size() == 2; }));
    EXPECT_THAT(answers.list, ElementsAre("uli: 0", "uli: 1"));
}

TEST(PlaceSearch, mayEndWhileItLoads)
{
    auto search = std::make_unique<PlaceSearch>(&twoPlaces);
    search->ask("l");
    search.reset();
    EXPECT_FALSE(test::waitFor([] { return false; }, std::chrono::milliseconds{50}));
}

} // namespace skyvane
