#include "core/enrichment/photo_api.h"

#include "core/enrichment/polite_request.h"
#include "platform/json/object.h"

#include <string>
#include <utility>

namespace skyvane::PhotoAPI {

namespace {

struct Photo {
    std::optional<std::string> thumbnail;
    std::optional<std::string> link;
    std::optional<std::string> photographer;
};

Photo photo(JSON::Value value)
{
    const JSON::Object members{value};
    const auto thumbnail = members.optional("thumbnail_large", JSON::members);
    return {
        .thumbnail = thumbnail ? thumbnail->optional("src", JSON::text) : std::nullopt,
        .link = members.optional("link", JSON::text),
        .photographer = members.optional("photographer", JSON::text),
    };
}

std::optional<URL> parsed(const std::optional<std::string>& text)
{
    return text ? URL::parse(*text) : std::nullopt;
}

/// All photos are read, since one of another shape makes the answer useless; the first is shown.
std::optional<PlanePhoto> planePhoto(JSON::Value answer)
{
    auto photos = JSON::members(answer).optional("photos", JSON::listOf(photo));
    if (!photos || photos->empty())
        return std::nullopt;
    Photo& first = photos->front();
    auto thumbnail = parsed(first.thumbnail);
    if (!thumbnail)
        return std::nullopt;
    return PlanePhoto{
        .thumbnailURL = *std::move(thumbnail),
        .pageURL = parsed(first.link),
        .photographer = std::move(first.photographer),
    };
}

} // namespace

std::optional<PlanePhoto> fetch(std::string_view hex, const Transport& transport, std::stop_token stop)
{
    const std::string url = "https://" + std::string{host} + "/pub/photos/hex/" + std::string{hex};
    return answerAt(url, transport, stop, planePhoto);
}

} // namespace skyvane::PhotoAPI
