#include "core/enrichment/photo_api.h"

#include "core/enrichment/json_answer.h"

#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace skyvane::PhotoAPI {

namespace {

struct Thumb {
    std::optional<std::string> src{};
};

struct Photo {
    std::optional<Thumb> thumbnailLarge{};
    std::optional<std::string> link{};
    std::optional<std::string> photographer{};
};

struct Wrapper {
    std::optional<std::vector<Photo>> photos{};
};

} // namespace

} // namespace skyvane::PhotoAPI

namespace skyvane::JSON {

template <>
struct Fields<PhotoAPI::Thumb> {
    static constexpr auto list = std::tuple{field("src", &PhotoAPI::Thumb::src)};
};

template <>
struct Fields<PhotoAPI::Photo> {
    static constexpr auto list = std::tuple{
        field("thumbnail_large", &PhotoAPI::Photo::thumbnailLarge),
        field("link", &PhotoAPI::Photo::link),
        field("photographer", &PhotoAPI::Photo::photographer),
    };
};

template <>
struct Fields<PhotoAPI::Wrapper> {
    static constexpr auto list = std::tuple{field("photos", &PhotoAPI::Wrapper::photos)};
};

} // namespace skyvane::JSON

namespace skyvane::PhotoAPI {

namespace {

std::optional<URL> parsed(const std::optional<std::string>& text)
{
    return text ? URL::parse(*text) : std::nullopt;
}

std::optional<PlanePhoto> planePhoto(const Photo& photo)
{
    if (!photo.thumbnailLarge)
        return std::nullopt;
    auto thumbnail = parsed(photo.thumbnailLarge->src);
    if (!thumbnail)
        return std::nullopt;
    return PlanePhoto{
        .thumbnailURL = *std::move(thumbnail),
        .pageURL = parsed(photo.link),
        .photographer = photo.photographer,
    };
}

} // namespace

std::optional<PlanePhoto> fetch(std::string_view hex, const Transport& transport, std::stop_token stop)
{
    const std::string url = "https://api.planespotters.net/pub/photos/hex/" + std::string{hex};
    const auto answer = recordAt<Wrapper>(url, transport, stop);
    if (!answer || !answer->photos || answer->photos->empty())
        return std::nullopt;
    return planePhoto(answer->photos->front());
}

} // namespace skyvane::PhotoAPI
