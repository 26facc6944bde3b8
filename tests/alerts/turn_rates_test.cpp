#include "alerts/turn_rates.h"

#include <gtest/gtest.h>

namespace skyvane {

TEST(TurnRates, areReadUnderEitherKey)
{
    const TurnRates expected{{"a", 0.06}, {"b", -3}};
    EXPECT_EQ(
        turnRatesIn(R"({"ac":[{"hex":"a","track_rate":0.06},{"hex":"b","track_rate":-3},{"hex":"c"}]})"),
        expected);
    EXPECT_EQ(
        turnRatesIn(R"({"aircraft":[{"track_rate":0.06,"hex":"a"},{"hex":"b","track_rate":-3}]})"), expected);
}

TEST(TurnRates, areOfTheListThatTheAircraftAreOf)
{
    EXPECT_EQ(turnRatesIn(R"({"aircraft":[{"hex":"b","track_rate":1}],"ac":[{"hex":"a","track_rate":2}]})"),
        (TurnRates{{"a", 2}}));
}

TEST(TurnRates, anotherTypeCostsNothingButItsOwn)
{
    EXPECT_EQ(
        turnRatesIn(
            R"({"ac":[{"hex":"a","track_rate":"left"},{"hex":3,"track_rate":1},{"hex":"b","track_rate":null},{"track_rate":1},{"hex":"c","track_rate":1}]})"),
        (TurnRates{{"c", 1}}));
}

TEST(TurnRates, ofWhatIsNoAnswerThereAreNone)
{
    for (const char* text : {"", "[]", "{", R"({"ac":3})", R"({"ac":[3]})", R"({"ac":null})"})
        EXPECT_EQ(turnRatesIn(text), TurnRates{}) << text;
}

TEST(TurnRates, ofTwoRecordsOfOneAircraftTheFirstCounts)
{
    EXPECT_EQ(turnRatesIn(R"({"ac":[{"hex":"a","track_rate":2},{"hex":"a","track_rate":0}]})"),
        (TurnRates{{"a", 2}}));
}

} // namespace skyvane
