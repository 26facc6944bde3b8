#include "core/views/sample_entry.h"

#include "core/feed/search_radius.h"
#include "core/model/distance_unit.h"
#include "core/model/fields.h"

#include <string_view>
#include <utility>

namespace skyvane {

namespace {

constexpr std::string_view sampleJSON = R"([
{"hex":"a1b2c3","flight":"ASA512  ","r":"N512AS","t":"B739","alt_baro":12500,"gs":320,"track":45,"lat":45.60,"lon":-122.70,"dst":3.2,"dir":310,"seen_pos":1},
{"hex":"a2c4e6","flight":"N757LY  ","r":"N757LY","t":"C152","alt_baro":1500,"gs":95,"track":180,"lat":45.55,"lon":-122.60,"dst":6.8,"dir":80,"seen_pos":1},
{"hex":"a3d5f7","flight":"QXE201  ","r":"N201QX","t":"E75L","alt_baro":8200,"gs":270,"track":270,"lat":45.40,"lon":-122.75,"dst":10.4,"dir":195,"seen_pos":1},
{"hex":"a4e6a8","flight":"UPS2914 ","r":"N354UP","t":"B763","alt_baro":24000,"gs":450,"track":135,"lat":45.70,"lon":-122.40,"dst":15.1,"dir":48,"seen_pos":1},
{"hex":"ae01ce","flight":"RCH440  ","r":"","t":"C17","alt_baro":18000,"gs":380,"track":10,"lat":45.30,"lon":-122.55,"dst":18.9,"dir":170,"dbFlags":1,"seen_pos":1}
])";

std::vector<Aircraft> sampleAircraft()
{
    try {
        return JSON::decodeText<std::vector<Aircraft>>(sampleJSON);
    } catch (const JSON::DecodingError&) {
        return {};
    }
}

} // namespace

SkyEntry sampleEntry(std::optional<std::string> accentHex)
{
    return {
        .date = Clock::now(),
        .aircraft = sampleAircraft(),
        .radiusNM = SearchRadius::standard,
        .home = HomeLocation{.latitude = 45.5, .longitude = -122.6, .label = "Home"},
        .isSample = true,
        .unit = DistanceUnit::standard,
        .accentHex = std::move(accentHex),
    };
}

} // namespace skyvane
