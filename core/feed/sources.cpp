#include "core/feed/sources.h"

#include "platform/text/format.h"

#include <array>

namespace skyvane::ADSB {

namespace {

std::string degrees(double value)
{
    return Format::fixed(value, 5);
}

} // namespace

std::span<const Source> sources()
{
    static const std::array<Source, 2> list{{
        {
            .name = "api.adsb.lol",
            .website = "adsb.lol",
            .url =
                [](const HomeLocation& home, int radiusNM) {
                    return "https://api.adsb.lol/v2/point/" + degrees(home.latitude) + "/"
                        + degrees(home.longitude) + "/" + std::to_string(radiusNM);
                },
        },
        {
            .name = "opendata.adsb.fi",
            .website = "adsb.fi",
            .url =
                [](const HomeLocation& home, int radiusNM) {
                    return "https://opendata.adsb.fi/api/v2/lat/" + degrees(home.latitude) + "/lon/"
                        + degrees(home.longitude) + "/dist/" + std::to_string(radiusNM);
                },
        },
    }};
    return list;
}

} // namespace skyvane::ADSB
