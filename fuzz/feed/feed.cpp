#include "core/feed/adsb.h"
#include "fuzz/every_widget.h"

#include <array>

namespace {

using namespace skyvane;

const HomeLocation home{.latitude = 51.5, .longitude = -0.12, .label = "Home"};

} // namespace

/// A source's answer, on its way to the screen.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::array units{"nm", "km", "mi"};
    const std::string body{fuzz::text(data, size)};
    const Transport transport
        = [&](const URLRequest&, const std::stop_token&) { return URLResponse{.status = 200, .body = body}; };
    try {
        fuzz::showEverywhere({
            .date = Date{std::chrono::hours{500'000}},
            .aircraft = ADSB::fetch(home, 25, transport),
            .radiusNM = 25,
            .home = home,
            .isSample = false,
            .unit = units.at(size % units.size()),
        });
    } catch (const FetchError&) {
        // What is no answer is refused.
    }
    return 0;
}
