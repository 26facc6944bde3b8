#include "companion/atlas/data.h"

#include <cstddef>

extern "C" {
extern const char skyvane_earth;
extern const char skyvane_earth_end;
extern const char skyvane_cities;
extern const char skyvane_cities_end;
extern const char skyvane_airports;
extern const char skyvane_airports_end;
}

namespace skyvane::AtlasData {

namespace {

std::string_view between(const char& first, const char& end)
{
    return {&first, static_cast<std::size_t>(&end - &first)};
}

} // namespace

std::string_view earth()
{
    return between(skyvane_earth, skyvane_earth_end);
}

std::string_view cities()
{
    return between(skyvane_cities, skyvane_cities_end);
}

std::string_view airports()
{
    return between(skyvane_airports, skyvane_airports_end);
}

} // namespace skyvane::AtlasData
