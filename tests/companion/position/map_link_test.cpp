#include "companion/position/map_link.h"

#include "companion/position/coordinates.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace skyvane {

namespace {

using Coordinates::Problem;

struct CopiedLink {
    std::string name;
    std::string link;
};

/// All of them lead to the same place.
void expectToLeadToMunich(const std::vector<CopiedLink>& rows)
{
    for (const CopiedLink& row : rows) {
        SCOPED_TRACE(row.name + ": " + row.link);
        for (const std::string& text : {row.link, "  " + row.link + "\n"}) {
            const auto reading = Coordinates::read(text);
            const auto* read = std::get_if<Coordinate>(&reading);
            ASSERT_NE(read, nullptr);
            EXPECT_NEAR(read->latitude, 48.13743, 1e-5);
            EXPECT_NEAR(read->longitude, 11.57549, 1e-5);
        }
    }
}

void expectProblem(const std::string& link, Problem problem)
{
    EXPECT_EQ(Coordinates::read(link), Coordinates::Reading{problem}) << link;
}

} // namespace

TEST(MapLink, ofOpenStreetMapIsRead)
{
    expectToLeadToMunich({
        {"map", "https://www.openstreetmap.org/#map=15/48.13743/11.57549"},
        {"layers", "https://www.openstreetmap.org/#map=15/48.13743/11.57549&layers=T"},
        {"markerBeforeMap", "https://www.openstreetmap.org/?mlat=48.13743&mlon=11.57549#map=6/51.33/10.45"},
        {"object", "https://www.openstreetmap.org/node/240090160#map=18/48.13743/11.57549"},
        {"embedded", "http://openstreetmap.org/?lat=48.13743&lon=11.57549&zoom=12"},
        {"withoutScheme", "www.openstreetmap.org/#map=15/48.13743/11.57549"},
    });
}

TEST(MapLink, shortenedByOpenStreetMapHoldsItsPlace)
{
    const auto angles = MapLink::angles("https://osm.org/go/0JAfnjBR--?m=");
    ASSERT_TRUE(angles);
    EXPECT_NEAR(angles->latitude, 48.13743, 0.001);
    EXPECT_NEAR(angles->longitude, 11.57549, 0.001);
    expectProblem("https://osm.org/go/", Problem::linkWithoutPosition);
}

TEST(MapLink, ofGoogleIsReadThePlaceBeforeTheMap)
{
    expectToLeadToMunich({
        {"map", "https://www.google.com/maps/@48.13743,11.57549,15z"},
        {"metres", "https://www.google.de/maps/@48.13743,11.57549,1052m/data=!3m1!1e3?entry=ttu"},
        {"place",
            "https://www.google.com/maps/place/Marienplatz/@48.14,11.6,12z/"
            "data=!4m6!3m5!1s0x0:0x0!8m2!3d48.13743!4d11.57549!16s"},
        {"query", "https://maps.google.com/?q=48.13743,11.57549"},
        {"codedComma", "https://www.google.com/maps/search/?api=1&query=48.13743%2C11.57549"},
        {"lastOfTheOld", "http://maps.google.com/maps?ll=48.13743,11.57549&z=14"},
        {"loc", "https://www.google.com/maps?q=loc:48.13743,11.57549"},
        {"search", "https://www.google.com/maps/search/48.13743,+11.57549?entry=tts"},
        {"destination", "https://www.google.com/maps/dir/?api=1&destination=48.13743,11.57549"},
    });
}

TEST(MapLink, ofAppleIsRead)
{
    expectToLeadToMunich({
        {"middle", "https://maps.apple.com/?ll=48.13743,11.57549&q=Marienplatz"},
        {"coordinate", "https://maps.apple.com/place?coordinate=48.13743,11.57549&name=Marked"},
        {"center", "https://maps.apple.com/frame?center=48.13743%2C11.57549&span=0.1%2C0.1"},
        {"capitals", "HTTPS://Maps.Apple.com/?LL=48.13743,11.57549"},
    });
}

TEST(MapLink, ofBingIsRead)
{
    expectToLeadToMunich({
        {"middle", "https://www.bing.com/maps?cp=48.13743~11.57549&lvl=15"},
        {"codedTilde", "https://www.bing.com/maps/?v=2&cp=48.13743%7E11.57549&lvl=15.0"},
        {"point", "https://bing.com/maps/default.aspx?sp=point.48.13743_11.57549_Home&cp=47~11"},
    });
}

TEST(MapLink, ofOtherMapsIsReadWhereItSaysItsPlace)
{
    expectToLeadToMunich({
        {"fragment", "https://map.example.org/#15/48.13743/11.57549"},
        {"turnedMap", "https://map.example.org/#15.25/48.13743/11.57549/0/45"},
        {"keys", "https://example.org/sky?lat=48.13743&lng=11.57549"},
        {"longKeys", "https://example.org/?latitude=48.13743&longitude=11.57549"},
    });
}

TEST(MapLink, thatOnlyItsSiteKnowsIsSaidToBeShort)
{
    expectProblem("https://maps.app.goo.gl/AbCdEf123", Problem::shortLink);
    expectProblem("https://goo.gl/maps/AbCdEf", Problem::shortLink);
    expectProblem("https://maps.apple/p/AbCdEf", Problem::shortLink);
}

TEST(MapLink, withoutAPositionIsSaidToHaveNone)
{
    for (const char* link : {"https://example.org", "https://www.google.com/maps/place/Munich", "https://",
             "https://example.org/?q=Munich", "https://example.org/?lat=48",
             "https://www.openstreetmap.org/#map=5", "https://example.org/@,",
             "https://example.org/?q=nan,inf", "http://example.org/%zz%"})
        expectProblem(link, Problem::linkWithoutPosition);
}

TEST(MapLink, beyondTheGlobeIsOutOfRange)
{
    expectProblem("https://www.google.com/maps/@98.1,11.5,15z", Problem::outOfRange);
    expectProblem("https://www.openstreetmap.org/#map=15/48/211", Problem::outOfRange);
}

TEST(MapLink, isNotSeenInOtherTexts)
{
    for (const char* text : {"", "51.5/0.12", "Munich", "N51.5/E0.1", "51.5, 0.12", "a.b c/d"})
        EXPECT_FALSE(MapLink::isLink(text)) << text;
    EXPECT_FALSE(MapLink::isLink("https://example.org/" + std::string(9000, 'a')));
}

} // namespace skyvane
