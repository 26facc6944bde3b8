#include "alerts/alert_words.h"

#include "platform/text/unicode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace skyvane::AlertWords {

namespace {

const Observer londoner{
    .home = HomeLocation{.latitude = 51.5, .longitude = -0.12, .label = ""}, .unit = "mi"};

Aircraft speedbird()
{
    return {
        .hex = "4007f0",
        .flight = "BAW117  ",
        .typeCode = "B77W",
        .distanceNM = 10.7,
        .directionDeg = 225.0,
    };
}

std::string overheadIn(double seconds, double elevation = 62.4)
{
    const SkyPosition pass{.in = {}, .distanceNM = 2, .bearingDeg = 230, .elevationDeg = elevation};
    return overhead(speedbird(), pass, std::chrono::duration<double>{seconds}).body;
}

Words distressOf(const char* squawk)
{
    Aircraft aircraft = speedbird();
    aircraft.squawk = squawk;
    aircraft.emergency = "general";
    return emergency(aircraft, londoner);
}

} // namespace

TEST(AlertWordsTest, aPassIsAnnouncedInMinutes)
{
    EXPECT_EQ(overheadIn(180), "BAW117, Boeing 777-300ER, passes 62° high in the south-west in 3 minutes.");
    EXPECT_EQ(overheadIn(80), "BAW117, Boeing 777-300ER, passes 62° high in the south-west in 1 minute.");
    EXPECT_EQ(overheadIn(29), "BAW117, Boeing 777-300ER, passes 62° high in the south-west now.");
}

TEST(AlertWordsTest, aPassRightAboveHasNoDirection)
{
    EXPECT_EQ(
        overheadIn(180, 79.4), "BAW117, Boeing 777-300ER, passes 79° high in the south-west in 3 minutes.");
    EXPECT_EQ(overheadIn(180, 79.5), "BAW117, Boeing 777-300ER, passes right above you in 3 minutes.");
    EXPECT_EQ(overheadIn(60, 88), "BAW117, Boeing 777-300ER, passes right above you in 1 minute.");
    EXPECT_EQ(overheadIn(0, 88), "BAW117, Boeing 777-300ER, passes right above you now.");
}

TEST(AlertWordsTest, anEmergencyIsNamed)
{
    const std::string where = " It is 12.3 mi away, in the south-west.";
    EXPECT_EQ(distressOf("7500").body, "BAW117, Boeing 777-300ER, reports a hijacking (7500)." + where);
    EXPECT_EQ(distressOf("7600").body,
        "BAW117, Boeing 777-300ER, reports that its radio has failed (7600)." + where);
    EXPECT_EQ(distressOf("7700").body, "BAW117, Boeing 777-300ER, reports an emergency (7700)." + where);
    EXPECT_EQ(distressOf("1000").body, "BAW117, Boeing 777-300ER, reports an emergency." + where);
    EXPECT_EQ(distressOf("7500").title, "Emergency");
}

TEST(AlertWordsTest, whatIsNotKnownIsNotSaid)
{
    const Aircraft unknown{.hex = "4007f0"};
    EXPECT_EQ(military(unknown, {.home = std::nullopt, .unit = "km"}).body, "4007F0 is in range.");
    Aircraft near = unknown;
    near.distanceNM = 10;
    EXPECT_EQ(watched(near, {.home = std::nullopt, .unit = "km"}).body, "4007F0 is in range.");
    near.directionDeg = 0;
    EXPECT_EQ(watched(near, {.home = std::nullopt, .unit = "km"}).body,
        "4007F0 is in range. It is 18.5 km away, in the north.");
}

TEST(AlertWordsTest, namesOfAnyLengthLeaveTheSentenceWhole)
{
    Aircraft absurd = speedbird();
    absurd.flight = std::string(10'000, 'A');
    absurd.typeCode.reset();
    absurd.typeDescription = std::string(10'000, 'b');
    for (const Words& words :
        {emergency(absurd, londoner), military(absurd, londoner), watched(absurd, londoner)}) {
        EXPECT_LE(Unicode::characters(words.body).size(), 256U);
        EXPECT_THAT(words.body, testing::EndsWith("It is 12.3 mi away, in the south-west."));
    }
}

TEST(AlertWordsTest, controlCharactersBecomeBlanks)
{
    Aircraft strange = speedbird();
    strange.flight = "A\nB\x1b[31m";
    EXPECT_THAT(
        watched(strange, londoner).body, testing::StartsWith("A B [31m, Boeing 777-300ER, is in range."));
}

} // namespace skyvane::AlertWords
