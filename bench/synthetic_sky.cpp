#include "bench/synthetic_sky.h"

#include "core/model/fields.h"
#include "platform/text/format.h"

#include <array>
#include <random>

namespace skyvane::bench {

namespace {

std::string aircraftObject(std::mt19937& random)
{
    const auto between = [&](double low, double high, int decimals) {
        return Format::fixed(low + (high - low) * static_cast<double>(random()) / 4294967295.0, decimals);
    };
    constexpr std::array types{"B738", "A320", "E75L", "C172", "B77W", "A21N"};
    const std::string serial = std::to_string(1000 + random() % 9000);
    return R"({"hex":"a)" + std::to_string(10000 + random() % 90000) + R"(","type":"adsb_icao","flight":"SKW)"
        + serial + R"( ","r":"N)" + serial + R"(SY","t":")" + types.at(random() % types.size())
        + R"(","desc":"BOEING 737-800","ownOp":"SKYWEST AIRLINES INC","alt_baro":)" + between(500, 41000, 0)
        + R"(,"alt_geom":)" + between(500, 41000, 0) + R"(,"gs":)" + between(80, 520, 1)
        + R"(,"ias":202,"tas":212,"mach":0.320,"wd":292,"ws":21,"oat":-4,"tat":18,"track":)"
        + between(0, 360, 2) + R"(,"track_rate":0.06,"roll":)" + between(-30, 30, 2)
        + R"(,"mag_heading":295.31,"true_heading":296.36,"baro_rate":)" + between(-2000, 2000, 0)
        + R"(,"geom_rate":1024,"squawk":"3304","emergency":"none","category":"A3",)"
        + R"("nav_qnh":1009.6,"nav_altitude_mcp":23008,"nav_heading":295.31,)"
        + R"("nav_modes":["autopilot","vnav","tcas"],"lat":)" + between(49, 54, 6) + R"(,"lon":)"
        + between(-4, 4, 6) + R"(,"nic":8,"rc":186,"seen_pos":)" + between(0, 20, 3)
        + R"(,"version":2,"nic_baro":1,"nac_p":10,"nac_v":2,"sil":3,"sil_type":"perhour","gva":2,"sda":2,"alert":0,)"
        + R"("spi":0,"mlat":[],"tisb":[],"messages":3578,"seen":0.1,"rssi":-18.5,"dst":)" + between(0, 250, 3)
        + R"(,"dir":)" + between(0, 360, 1) + "}";
}

} // namespace

std::string syntheticAnswer(std::size_t aircraftCount, unsigned moment)
{
    std::mt19937 random{moment};
    std::string json = R"({"ac":[)";
    for (std::size_t index = 0; index < aircraftCount; ++index) {
        json += index == 0 ? "" : ",";
        json += aircraftObject(random);
    }
    return json + R"(],"msg":"No error","now":1763349004000,"total":5000,"ctime":1763349004000,"ptime":3})";
}

SkyEntry syntheticEntry(std::size_t aircraftCount, unsigned moment)
{
    return {
        .date = Clock::now(),
        .aircraft = JSON::decodeText<APIResponse>(syntheticAnswer(aircraftCount, moment)).ac.value(),
        .radiusNM = 250,
        .home = HomeLocation{.latitude = 51.5, .longitude = -0.12, .label = "Home"},
        .isSample = false,
        .unit = "km",
    };
}

} // namespace skyvane::bench
