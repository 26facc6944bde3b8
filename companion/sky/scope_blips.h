#pragma once

#include "core/views/sky_entry.h"
#include "ui/layout/display_list.h"

#include <QPointF>
#include <QRectF>

#include <optional>
#include <string>
#include <vector>

namespace skyvane {

/// An aircraft on a scope that is laid out.
struct Blip {
    const Aircraft* aircraft;
    QPointF center;
    double side; ///< Of its pictogram.
};

/// The aircraft on a scope that is laid out, the nearest to home first.
class ScopeBlips {
public:
    ScopeBlips() = default;
    /// Points into `sky`, of which `list` shows the scope.
    ScopeBlips(const DisplayList& list, const SkyEntry& sky);

    const std::vector<Blip>& all() const { return m_blips; }
    std::size_t count() const { return m_blips.size(); }
    const Blip& operator[](std::size_t index) const { return m_blips[index]; }

    /// The square around the scope's outer ring; empty without one.
    const QRectF& square() const { return m_square; }

    /// The nearest that a pointer there reaches.
    std::optional<std::size_t> at(const QPointF& place) const;
    std::optional<std::size_t> of(const std::string& hex) const;

private:
    std::vector<Blip> m_blips;
    QRectF m_square;
};

} // namespace skyvane
