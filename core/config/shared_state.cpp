#include "core/config/shared_state.h"

#include "core/model/fields.h"
#include "platform/files/configuration_file.h"
#include "platform/json/decode.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace skyvane {

template <>
struct JSON::Fields<SharedState::Config> {
    static constexpr auto list = std::tuple{
        field("home", &SharedState::Config::home),
        field("radiusNM", &SharedState::Config::radiusNM),
        field("distanceUnit", &SharedState::Config::distanceUnit),
        field("widgetColorHex", &SharedState::Config::widgetColorHex),
    };
};

namespace SharedState {

namespace {

constexpr std::size_t largestFile = 1024UL * 1024; ///< Bytes; a configuration has a few hundred.

/// Absent for what JSON cannot say: a number that is not finite, a text that is not UTF-8.
std::optional<std::string> encoded(const Config& config)
{
    for (const double number : {config.home.latitude, config.home.longitude, config.radiusNM}) {
        if (!std::isfinite(number))
            return std::nullopt;
    }
    nlohmann::ordered_json json{
        {"home",
            {
                {"latitude", config.home.latitude},
                {"longitude", config.home.longitude},
                {"label", config.home.label},
            }},
        {"radiusNM", config.radiusNM},
    };
    if (config.distanceUnit)
        json["distanceUnit"] = *config.distanceUnit;
    if (config.widgetColorHex)
        json["widgetColorHex"] = *config.widgetColorHex;
    try {
        return json.dump();
    } catch (const nlohmann::json::type_error&) {
        return std::nullopt;
    }
}

} // namespace

std::filesystem::path directory()
{
    return Files::configurationFile().parent_path();
}

std::optional<Config> read()
{
    const auto bytes = Files::read(Files::configurationFile(), largestFile);
    if (!bytes)
        return std::nullopt;
    try {
        return JSON::decodeText<Config>(*bytes);
    } catch (const JSON::DecodingError&) {
        return std::nullopt;
    }
}

void write(const Config& config)
{
    std::error_code ignored;
    std::filesystem::create_directories(directory(), ignored);
    if (const auto bytes = encoded(config))
        Files::writeAtomically(Files::configurationFile(), *bytes);
}

void clear()
{
    std::error_code ignored;
    std::filesystem::remove(Files::configurationFile(), ignored);
}

} // namespace SharedState

} // namespace skyvane
