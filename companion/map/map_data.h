#pragma once

#include "companion/atlas/atlas.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace skyvane {

/// A place as seen from the middle of the Earth, of length 1.
struct Direction {
    float x; ///< Towards 0° N 0° E.
    float y; ///< Towards 0° N 90° E.
    float z; ///< Towards the North Pole.

    static Direction of(const Coordinate& coordinate);
};

/// The Earth made ready for drawing.
struct MapData {
    struct Piece {
        std::uint32_t first; ///< In `points`.
        std::uint32_t count;
        Direction middle;
        float reach; ///< From there to the farthest point, radians.
    };

    struct Lines {
        std::vector<Direction> points{};
        std::vector<Piece> pieces{};

        std::span<const Direction> of(const Piece& piece) const
        {
            return std::span{points}.subspan(piece.first, piece.count);
        }
    };

    template <class Named>
    struct Marks {
        std::vector<Named> named{}; ///< The largest first.
        std::vector<Direction> places{}; ///< Of each.
    };

    Lines coast;
    Lines borders;
    Marks<Atlas::City> cities;
    std::vector<std::string> cityNames; ///< Of each, in the user's language as far as known.
    Marks<Atlas::Airport> airports;

    /// Takes some ten milliseconds.
    static MapData load();
};

} // namespace skyvane
