#include "companion/position/coordinates.h"

#include "fuzz/fuzzer.h"

#include <cmath>

namespace {

using namespace skyvane;

bool isOnEarth(const Coordinate& place)
{
    return std::abs(place.latitude) <= 90 && std::abs(place.longitude) <= 180;
}

/// To a bit more than the last decimal that is written.
bool isSamePlace(const Coordinate& one, const Coordinate& other)
{
    constexpr double tolerance = 1e-6;
    return std::abs(one.latitude - other.latitude) <= tolerance
        && std::abs(one.longitude - other.longitude) <= tolerance;
}

} // namespace

/// A position as somebody pasted it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Coordinates::Reading reading = Coordinates::read(fuzz::text(data, size));
    const auto* place = std::get_if<Coordinate>(&reading);
    if (place == nullptr)
        return 0;
    fuzz::require(isOnEarth(*place) && isOnEarth(Coordinates::rounded(*place)));
    const Coordinates::Reading again = Coordinates::read(Coordinates::text(*place));
    const auto* samePlace = std::get_if<Coordinate>(&again);
    fuzz::require(samePlace != nullptr && isSamePlace(*place, *samePlace));
    return 0;
}
