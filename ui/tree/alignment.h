#pragma once

namespace skyvane {

/// Where children stand along one axis that is not the stack's own.
enum class HorizontalAlignment { leading, center, trailing };
enum class VerticalAlignment { top, center, bottom };

/// Where a child stands inside a frame.
struct Alignment {
    HorizontalAlignment horizontal = HorizontalAlignment::center;
    VerticalAlignment vertical = VerticalAlignment::center;

    static const Alignment topLeading, top, topTrailing;
    static const Alignment leading, center, trailing;
    static const Alignment bottomLeading, bottom, bottomTrailing;

    bool operator==(const Alignment&) const = default;
};

inline constexpr Alignment Alignment::topLeading{HorizontalAlignment::leading, VerticalAlignment::top};
inline constexpr Alignment Alignment::top{HorizontalAlignment::center, VerticalAlignment::top};
inline constexpr Alignment Alignment::topTrailing{HorizontalAlignment::trailing, VerticalAlignment::top};
inline constexpr Alignment Alignment::leading{HorizontalAlignment::leading, VerticalAlignment::center};
inline constexpr Alignment Alignment::center{HorizontalAlignment::center, VerticalAlignment::center};
inline constexpr Alignment Alignment::trailing{HorizontalAlignment::trailing, VerticalAlignment::center};
inline constexpr Alignment Alignment::bottomLeading{HorizontalAlignment::leading, VerticalAlignment::bottom};
inline constexpr Alignment Alignment::bottom{HorizontalAlignment::center, VerticalAlignment::bottom};
inline constexpr Alignment Alignment::bottomTrailing{
    HorizontalAlignment::trailing, VerticalAlignment::bottom};

} // namespace skyvane
