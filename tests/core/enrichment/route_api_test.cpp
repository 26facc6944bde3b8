#include "core/enrichment/route_api.h"

#include "tests/core/enrichment/fake_service.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace skyvane::test {
namespace {

const JSONText routeAnswer{
    {"response",
        {{"flightroute",
            {
                {"callsign", "UAL123"},
                {"origin",
                    {{"iata_code", "SFO"}, {"icao_code", "KSFO"}, {"municipality", "San Francisco"},
                        {"elevation", 13}}},
                {"destination", {{"iata_code", "JFK"}, {"icao_code", "KJFK"}, {"municipality", "New York"}}},
            }}}},
};

const FlightRoute expectedRoute{
    .originCode = "SFO",
    .originCity = "San Francisco",
    .destinationCode = "JFK",
    .destinationCity = "New York",
};

const std::string origin = "/response/flightroute/origin";
const std::string destination = "/response/flightroute/destination";

std::optional<FlightRoute> fetchedRoute(FakeService service)
{
    return RouteAPI::fetch("UAL123", service.transport());
}

std::optional<FlightRoute> routeIn(const JSONText& document)
{
    return fetchedRoute(FakeService::answering(document.dump()));
}

TEST(RouteAPI, asksOnceForEightSecondsWithOneHeader)
{
    FakeService service = FakeService::answering(routeAnswer.dump());
    EXPECT_EQ(RouteAPI::fetch("UAL123", service.transport()), expectedRoute);
    service.expectOnlyRequest("https://api.adsbdb.com/v0/callsign/UAL123");
}

TEST(RouteAPI, twoCallsForOneCallsignAreTwoRequests)
{
    FakeService service = FakeService::answering(routeAnswer.dump());
    RouteAPI::fetch("UAL123", service.transport());
    RouteAPI::fetch("UAL123", service.transport());
    EXPECT_EQ(service.requests.size(), 2U);
}

TEST(RouteAPI, theCallsignIsAppendedAsItStands)
{
    for (const std::string callsign : {"", "ual123", "UAL%20123", "a/b?c=d", "~x"}) {
        FakeService service = FakeService::answering(routeAnswer.dump());
        EXPECT_EQ(RouteAPI::fetch(callsign, service.transport()), expectedRoute) << callsign;
        service.expectOnlyRequest("https://api.adsbdb.com/v0/callsign/" + callsign);
    }
}

TEST(RouteAPI, aCallsignThatFormsNoURLAsksNobody)
{
    for (const char* callsign : {"UAL123 ", "UAL 1", "100%", "\u00c9AL1", "<1>", "UAL1\n", "a\\b"}) {
        FakeService service = FakeService::answering(routeAnswer.dump());
        EXPECT_EQ(RouteAPI::fetch(callsign, service.transport()), std::nullopt) << callsign;
        EXPECT_TRUE(service.requests.empty()) << callsign;
    }
}

TEST(RouteAPI, everyStatusBut200IsAbsentWhateverTheBody)
{
    for (const int status : {201, 203, 204, 206, 301, 304, 400, 403, 404, 429, 500, 503}) {
        FakeService service = FakeService::answering(routeAnswer.dump(), status);
        EXPECT_EQ(RouteAPI::fetch("UAL123", service.transport()), std::nullopt) << status;
        EXPECT_EQ(service.requests.size(), 1U) << status;
    }
}

TEST(RouteAPI, aFailedTransferIsAbsent)
{
    EXPECT_EQ(fetchedRoute(FakeService::failing(TransferError{"Timeout was reached"})), std::nullopt);
}

TEST(RouteAPI, cancellationIsAbsent)
{
    EXPECT_EQ(fetchedRoute(FakeService::failing(CancellationError{})), std::nullopt);
}

TEST(RouteAPI, nothingThatATransportThrowsPasses)
{
    EXPECT_EQ(fetchedRoute(FakeService::failing(std::runtime_error{"unheard of"})), std::nullopt);
}

TEST(RouteAPI, theCallersStopTokenReachesTheTransport)
{
    std::stop_source source;
    const Transport transport = [&](const URLRequest&, const std::stop_token& stop) -> URLResponse {
        source.request_stop();
        EXPECT_TRUE(stop.stop_requested());
        throw CancellationError{};
    };
    EXPECT_EQ(RouteAPI::fetch("UAL123", transport, source.get_token()), std::nullopt);
}

TEST(RouteAPI, aBodyThatIsNotJSONIsAbsent)
{
    for (const char* body : {"", "<html></html>", "{", R"({"response":{}} trailing)", "null", "7", "[]"})
        EXPECT_EQ(fetchedRoute(FakeService::answering(body)), std::nullopt) << body;
}

TEST(RouteAPI, aResponseThatIsATextIsAbsent)
{
    EXPECT_EQ(fetchedRoute(FakeService::answering(R"({"response":"unknown callsign"})")), std::nullopt);
}

TEST(RouteAPI, aMissingOrNullResponseIsAbsent)
{
    EXPECT_EQ(fetchedRoute(FakeService::answering("{}")), std::nullopt);
    EXPECT_EQ(fetchedRoute(FakeService::answering(R"({"response":null})")), std::nullopt);
}

TEST(RouteAPI, aMissingOrNullRouteIsAbsent)
{
    EXPECT_EQ(fetchedRoute(FakeService::answering(R"({"response":{}})")), std::nullopt);
    EXPECT_EQ(fetchedRoute(FakeService::answering(R"({"response":{"flightroute":null}})")), std::nullopt);
}

TEST(RouteAPI, aMissingOrNullAirportIsAbsent)
{
    for (const char* airport : {"origin", "destination"}) {
        EXPECT_EQ(routeIn(without(routeAnswer, "/response/flightroute", airport)), std::nullopt) << airport;
        EXPECT_EQ(routeIn(changed(routeAnswer, "/response/flightroute/" + std::string{airport}, nullptr)),
            std::nullopt)
            << airport;
    }
}

TEST(RouteAPI, aValueOfTheWrongTypeAtAnyKeyIsAbsent)
{
    for (const std::string& pointer :
        {std::string{}, std::string{"/response"}, std::string{"/response/flightroute"}, origin,
            origin + "/iata_code", origin + "/icao_code", origin + "/municipality", destination,
            destination + "/iata_code", destination + "/icao_code", destination + "/municipality"}) {
        for (const JSONText& value : wrongValues(routeAnswer, pointer))
            EXPECT_EQ(routeIn(changed(routeAnswer, pointer, value)), std::nullopt) << pointer << value;
    }
}

TEST(RouteAPI, unlistedKeysAreNotRead)
{
    EXPECT_EQ(routeIn(changed(routeAnswer, "/response/flightroute/airline", 7)), expectedRoute);
    EXPECT_EQ(routeIn(changed(routeAnswer, origin + "/IATA_CODE", 7)), expectedRoute);
}

TEST(RouteAPI, withoutAnIATACodeTheICAOCodeCounts)
{
    EXPECT_EQ(routeIn(changed(routeAnswer, origin + "/iata_code", nullptr))->originCode, "KSFO");
    EXPECT_EQ(routeIn(without(routeAnswer, destination, "iata_code"))->destinationCode, "KJFK");
}

TEST(RouteAPI, anEmptyIATACodeIsACode)
{
    EXPECT_EQ(routeIn(changed(routeAnswer, origin + "/iata_code", ""))->originCode, "");
    EXPECT_EQ(routeIn(changed(routeAnswer, destination + "/iata_code", ""))->destinationCode, "");
}

TEST(RouteAPI, anIATACodeNeedsNoICAOCode)
{
    EXPECT_EQ(
        routeIn(changed(without(routeAnswer, origin, "icao_code"), destination + "/icao_code", nullptr)),
        expectedRoute);
}

TEST(RouteAPI, anAirportWithoutAnyCodeIsAbsent)
{
    for (const std::string& airport : {origin, destination}) {
        EXPECT_EQ(
            routeIn(without(without(routeAnswer, airport, "iata_code"), airport, "icao_code")), std::nullopt);
        EXPECT_EQ(routeIn(changed(changed(routeAnswer, airport + "/iata_code", nullptr),
                      airport + "/icao_code", nullptr)),
            std::nullopt);
    }
}

TEST(RouteAPI, aRouteWithoutACityStillHasItsSummary)
{
    for (const JSONText& document : {without(routeAnswer, destination, "municipality"),
             changed(routeAnswer, destination + "/municipality", nullptr)}) {
        const auto found = routeIn(document);
        ASSERT_TRUE(found);
        EXPECT_EQ(found->destinationCity, std::nullopt);
        EXPECT_EQ(found->citySummary(), std::nullopt);
        EXPECT_EQ(found->summary(), "SFO \u2192 JFK");
    }
    EXPECT_EQ(routeIn(without(routeAnswer, origin, "municipality"))->originCity, std::nullopt);
}

TEST(RouteAPI, anEmptyCityIsThere)
{
    EXPECT_EQ(routeIn(changed(routeAnswer, origin + "/municipality", ""))->citySummary(), " \u2192 New York");
}

TEST(RouteAPI, theAirlineIsReadBesideTheRoute)
{
    const auto answer = changed(
        routeAnswer, "/response/flightroute/airline", {{"name", "United Airlines"}, {"icao", "UAL"}});
    FakeService service = FakeService::answering(answer.dump());
    EXPECT_EQ(RouteAPI::fetchFlight("UAL123", service.transport()),
        (RouteAPI::Flight{.route = expectedRoute, .airline = "United Airlines"}));
    service.expectOnlyRequest("https://api.adsbdb.com/v0/callsign/UAL123");
    EXPECT_EQ(routeIn(answer), expectedRoute);
}

TEST(RouteAPI, aFlightWithoutARouteStillHasItsAirline)
{
    FakeService service
        = FakeService::answering(R"({"response":{"flightroute":{"airline":{"name":"Ryanair"}}}})");
    EXPECT_EQ(RouteAPI::fetchFlight("RYR1", service.transport()), (RouteAPI::Flight{.airline = "Ryanair"}));
}

TEST(RouteAPI, anAirlineOfAnotherShapeIsNone)
{
    for (const JSONText& airline : {JSONText(nullptr), JSONText(7), JSONText("Ryanair"), JSONText::object(),
             JSONText{{"name", 7}}, JSONText{{"name", nullptr}}}) {
        const auto answer = changed(routeAnswer, "/response/flightroute/airline", airline);
        EXPECT_EQ(RouteAPI::fetchFlight("UAL123", FakeService::answering(answer.dump()).transport()),
            (RouteAPI::Flight{.route = expectedRoute}))
            << airline;
        EXPECT_EQ(routeIn(answer), expectedRoute) << airline;
    }
}

TEST(RouteAPI, aFailedFlightIsAbsentAsARouteIs)
{
    FakeService refusing = FakeService::answering(routeAnswer.dump(), 404);
    EXPECT_EQ(RouteAPI::fetchFlight("UAL123", refusing.transport()), std::nullopt);
    FakeService unknown = FakeService::answering(R"({"response":"unknown callsign"})");
    EXPECT_EQ(RouteAPI::fetchFlight("UAL123", unknown.transport()), std::nullopt);
}

TEST(RouteAPI, ofTwoEqualKeysTheFirstCounts)
{
    EXPECT_EQ(fetchedRoute(FakeService::answering(R"({"response":{"flightroute":{
        "origin":{"iata_code":"AAA","iata_code":"BBB"},"destination":{"icao_code":"CCCC"},"origin":7}}})")),
        (FlightRoute{.originCode = "AAA", .destinationCode = "CCCC"}));
}

} // namespace
} // namespace skyvane::test
