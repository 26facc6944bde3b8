#include "core/enrichment/photo_api.h"

#include "tests/core/enrichment/fake_service.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace skyvane::test {
namespace {

constexpr const char* image = "https://t.plnspttrs.net/1/1_280.jpg";
constexpr const char* page = "https://www.planespotters.net/photo/1?utm_source=api";

const JSONText first{
    {"id", "1"},
    {"thumbnail", {{"src", "https://t.plnspttrs.net/1/1_t.jpg"}}},
    {"thumbnail_large", {{"src", image}, {"size", {{"width", 419}, {"height", 280}}}}},
    {"link", page},
    {"photographer", "J\u00f6rg  Example "},
};

const JSONText photoAnswer{{"photos", JSONText::array({first})}};

const PlanePhoto expectedPhoto{
    .thumbnailURL = URL::parse(image).value(),
    .pageURL = URL::parse(page).value(),
    .photographer = "J\u00f6rg  Example ",
};

std::optional<PlanePhoto> fetchedPhoto(FakeService service)
{
    return PhotoAPI::fetch("a1b2c3", service.transport());
}

std::optional<PlanePhoto> photoIn(const JSONText& document)
{
    return fetchedPhoto(FakeService::answering(document.dump()));
}

TEST(PhotoAPI, asksOnceForEightSecondsWithOneHeader)
{
    FakeService service = FakeService::answering(photoAnswer.dump());
    EXPECT_EQ(PhotoAPI::fetch("a1b2c3", service.transport()), expectedPhoto);
    service.expectOnlyRequest("https://api.planespotters.net/pub/photos/hex/a1b2c3");
}

TEST(PhotoAPI, twoCallsForOneAircraftAreTwoRequests)
{
    FakeService service = FakeService::answering(photoAnswer.dump());
    PhotoAPI::fetch("a1b2c3", service.transport());
    PhotoAPI::fetch("a1b2c3", service.transport());
    EXPECT_EQ(service.requests.size(), 2U);
}

TEST(PhotoAPI, theAddressIsAppendedAsItStands)
{
    for (const std::string hex : {"", "A1B2C3", "~a1b2c3", "a%20b"}) {
        FakeService service = FakeService::answering(photoAnswer.dump());
        EXPECT_EQ(PhotoAPI::fetch(hex, service.transport()), expectedPhoto) << hex;
        service.expectOnlyRequest("https://api.planespotters.net/pub/photos/hex/" + hex);
    }
}

TEST(PhotoAPI, anAddressThatFormsNoURLAsksNobody)
{
    for (const char* hex : {" a1b2c3", "a1 b2", "%", "\u00e9", "\"", "a\tb"}) {
        FakeService service = FakeService::answering(photoAnswer.dump());
        EXPECT_EQ(PhotoAPI::fetch(hex, service.transport()), std::nullopt) << hex;
        EXPECT_TRUE(service.requests.empty()) << hex;
    }
}

TEST(PhotoAPI, everyStatusBut200IsAbsentWhateverTheBody)
{
    for (const int status : {201, 203, 204, 206, 301, 304, 400, 403, 404, 429, 500, 503}) {
        FakeService service = FakeService::answering(photoAnswer.dump(), status);
        EXPECT_EQ(PhotoAPI::fetch("a1b2c3", service.transport()), std::nullopt) << status;
        EXPECT_EQ(service.requests.size(), 1U) << status;
    }
}

TEST(PhotoAPI, aFailedTransferIsAbsent)
{
    EXPECT_EQ(fetchedPhoto(FakeService::failing(TransferError{"Timeout was reached"})), std::nullopt);
}

TEST(PhotoAPI, cancellationIsAbsent)
{
    EXPECT_EQ(fetchedPhoto(FakeService::failing(CancellationError{})), std::nullopt);
}

TEST(PhotoAPI, nothingThatATransportThrowsPasses)
{
    EXPECT_EQ(fetchedPhoto(FakeService::failing(std::runtime_error{"unheard of"})), std::nullopt);
}

TEST(PhotoAPI, theCallersStopTokenReachesTheTransport)
{
    std::stop_source source;
    const Transport transport = [&](const URLRequest&, const std::stop_token& stop) -> URLResponse {
        source.request_stop();
        EXPECT_TRUE(stop.stop_requested());
        throw CancellationError{};
    };
    EXPECT_EQ(PhotoAPI::fetch("a1b2c3", transport, source.get_token()), std::nullopt);
}

TEST(PhotoAPI, aBodyThatIsNotJSONIsAbsent)
{
    for (const char* body : {"", "<html></html>", "{", R"({"photos":[]} trailing)", "null", "7", "[]"})
        EXPECT_EQ(fetchedPhoto(FakeService::answering(body)), std::nullopt) << body;
}

TEST(PhotoAPI, noPhotosAreAbsent)
{
    EXPECT_EQ(fetchedPhoto(FakeService::answering("{}")), std::nullopt);
    EXPECT_EQ(fetchedPhoto(FakeService::answering(R"({"photos":null})")), std::nullopt);
    EXPECT_EQ(fetchedPhoto(FakeService::answering(R"({"photos":[]})")), std::nullopt);
}

TEST(PhotoAPI, aValueOfTheWrongTypeAtAnyKeyIsAbsent)
{
    for (const char* pointer : {"", "/photos", "/photos/0", "/photos/0/thumbnail_large",
             "/photos/0/thumbnail_large/src", "/photos/0/link", "/photos/0/photographer"}) {
        for (const JSONText& value : wrongValues(photoAnswer, pointer))
            EXPECT_EQ(photoIn(changed(photoAnswer, pointer, value)), std::nullopt) << pointer << value;
    }
}

TEST(PhotoAPI, aLaterPhotoOfTheWrongShapeFailsTheWholeAnswer)
{
    EXPECT_EQ(photoIn(changed(photoAnswer, "/photos/1", {{"link", 7}})), std::nullopt);
    EXPECT_EQ(photoIn(changed(photoAnswer, "/photos/1", nullptr)), std::nullopt);
}

TEST(PhotoAPI, unlistedKeysAreNotRead)
{
    EXPECT_EQ(photoIn(changed(changed(photoAnswer, "/error", 7), "/photos/0/thumbnail", 7)), expectedPhoto);
}

TEST(PhotoAPI, onlyTheFirstOfTwoPhotosCounts)
{
    const JSONText both = changed(photoAnswer, "/photos/1",
        {{"thumbnail_large", {{"src", "https://other.test/2.jpg"}}}, {"link", "https://other.test/2"},
            {"photographer", "Another"}});
    EXPECT_EQ(photoIn(both), expectedPhoto);
    PlanePhoto uncredited = expectedPhoto;
    uncredited.photographer.reset();
    EXPECT_EQ(photoIn(without(both, "/photos/0", "photographer")), uncredited);
}

TEST(PhotoAPI, aFirstPhotoWithoutALargeThumbnailIsAbsentWhateverTheNextHave)
{
    const JSONText both = changed(photoAnswer, "/photos/1", first);
    EXPECT_EQ(photoIn(without(both, "/photos/0", "thumbnail_large")), std::nullopt);
    EXPECT_EQ(photoIn(changed(both, "/photos/0/thumbnail_large", nullptr)), std::nullopt);
}

TEST(PhotoAPI, aLargeThumbnailWithoutASourceIsAbsent)
{
    EXPECT_EQ(photoIn(without(photoAnswer, "/photos/0/thumbnail_large", "src")), std::nullopt);
    EXPECT_EQ(photoIn(changed(photoAnswer, "/photos/0/thumbnail_large/src", nullptr)), std::nullopt);
}

TEST(PhotoAPI, aThumbnailSourceThatIsNoURLIsAbsent)
{
    for (const char* source : {"", "not a url", "https://t.plnspttrs.net/100%.jpg"})
        EXPECT_EQ(photoIn(changed(photoAnswer, "/photos/0/thumbnail_large/src", source)), std::nullopt)
            << source;
}

TEST(PhotoAPI, aSourceAloneIsAPhoto)
{
    EXPECT_EQ(fetchedPhoto(FakeService::answering(
                  R"({"photos":[{"thumbnail_large":{"src":"https://t.plnspttrs.net/1/1_280.jpg"}}]})")),
        PlanePhoto{.thumbnailURL = expectedPhoto.thumbnailURL});
    EXPECT_EQ(
        photoIn(changed(changed(photoAnswer, "/photos/0/link", nullptr), "/photos/0/photographer", nullptr)),
        PlanePhoto{.thumbnailURL = expectedPhoto.thumbnailURL});
}

TEST(PhotoAPI, aLinkThatIsNoURLOnlyLeavesThePageAbsent)
{
    PlanePhoto pageless = expectedPhoto;
    pageless.pageURL.reset();
    for (const char* link : {"", "not a url", "https://exa mple.test/"})
        EXPECT_EQ(photoIn(changed(photoAnswer, "/photos/0/link", link)), pageless) << link;
}

TEST(PhotoAPI, anEmptyPhotographerIsThere)
{
    EXPECT_EQ(photoIn(changed(photoAnswer, "/photos/0/photographer", ""))->photographer, "");
}

TEST(PlanePhoto, equalityComparesAllThreeFields)
{
    PlanePhoto other = expectedPhoto;
    other.thumbnailURL = URL::parse("https://other.test/").value();
    EXPECT_NE(other, expectedPhoto);
    other = expectedPhoto;
    other.pageURL.reset();
    EXPECT_NE(other, expectedPhoto);
    other = expectedPhoto;
    other.photographer.reset();
    EXPECT_NE(other, expectedPhoto);
}

} // namespace
} // namespace skyvane::test
