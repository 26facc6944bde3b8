#include "fuzz/fuzzer.h"
#include "host/placing/placed_widget.h"
#include "ui/layout/widget_container.h"

namespace {

using namespace skyvane;

const std::vector<ScreenArea> screens{
    {.name = "HDMI-1", .area = {0, 28, 1920, 1052}},
    {.name = "DP-2", .area = {-1080, -400, 1080, 1920}},
};

} // namespace

/// The file in which the host remembers where its widgets stand.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto arrangement = Arrangement::decoded(fuzz::text(data, size));
    if (!arrangement)
        return 0;
    fuzz::require(Arrangement::decoded(arrangement->encoded()) == arrangement);
    std::vector<QRect> taken;
    for (const PlacedWidget& widget : arrangement->widgets) {
        const Size points = WidgetContainer::size(widget.target.family);
        const QSize pixels{static_cast<int>(points.width), static_cast<int>(points.height)};
        const QRect frame = Placing::frame(widget.placement, pixels, screens);
        const auto screen = Placing::screenOf(frame, screens);
        fuzz::require(screen && screen->area.contains(frame));
        fuzz::require(screen->area.contains(Placing::snapped(frame, screen->area, taken)));
        fuzz::require(screen->area.contains(Placing::freeFrame(pixels, screen->area, taken)));
        taken.push_back(frame);
    }
    return 0;
}
