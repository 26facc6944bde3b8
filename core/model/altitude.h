#pragma once

#include <cstdint>
#include <optional>

namespace skyvane {

/// A barometric altitude in feet, or the marker that the aircraft is on the ground.
class Altitude {
public:
    static constexpr Altitude feet(std::int64_t value) { return Altitude{value}; }
    static constexpr Altitude ground() { return Altitude{std::nullopt}; }

    constexpr bool isGround() const { return !m_feet; }

    /// Absent on the ground.
    constexpr std::optional<std::int64_t> feet() const { return m_feet; }

    bool operator==(const Altitude&) const = default;

private:
    explicit constexpr Altitude(std::optional<std::int64_t> feet) : m_feet(feet) { }

    std::optional<std::int64_t> m_feet;
};

} // namespace skyvane
