#include "core/config/shared_state.h"
#include "fuzz/every_widget.h"
#include "platform/files/files.h"
#include "platform/pinned.h"
#include "tests/support/scratch_folder.h"

#include <cmath>
#include <fstream>

namespace {

using namespace skyvane;

/// A home folder that lasts as long as the process.
class Home {
public:
    Home() { std::filesystem::create_directories(SharedState::directory()); }

    void put(std::string_view configuration) const
    {
        std::ofstream{SharedState::directory() / "widget-config.json", std::ios::binary} << configuration;
    }

private:
    test::ScratchFolder m_folder{};
    Pinned<HomeFolder> m_pinned{{.path = m_folder.path()}};
};

/// Beyond this the widgets, by their own rule, have nothing to say.
bool hasRadiusToShow(const SharedState::Config& config)
{
    constexpr double limit = 9e18;
    return std::abs(config.radiusNM) < limit;
}

} // namespace

/// The configuration file, read, shown, and written again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Home home;
    home.put(fuzz::text(data, size));
    const auto config = SharedState::read();
    if (!config)
        return 0;
    SharedState::write(*config);
    fuzz::require(SharedState::read() == config);
    if (hasRadiusToShow(*config))
        fuzz::showEverywhere({
            .date = Date{std::chrono::hours{500'000}},
            .aircraft = {},
            .radiusNM = config->radiusNM,
            .home = config->home,
            .isSample = false,
            .unit = config->distanceUnit.value_or("mi"),
            .accentHex = config->widgetColorHex,
        });
    return 0;
}
