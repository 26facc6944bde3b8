#include "companion/sky/scope_blips.h"

#include "paint/to_qt.h"
#include "ui/tree/build.h"

#include <QLineF>

#include <algorithm>
#include <unordered_map>
#include <variant>

namespace skyvane {

namespace {

constexpr double reach = 11; ///< Of the pointer around a blip, pixels.

QRectF squareOf(const DisplayList& list)
{
    QRectF square;
    for (const DisplayItem& item : list.items) {
        const auto* ring = std::get_if<Ellipse>(&item);
        if (ring == nullptr || ring->diameter <= square.width())
            continue;
        const double radius = ring->diameter / 2;
        square = {toQt(ring->center) - QPointF{radius, radius}, QSizeF{ring->diameter, ring->diameter}};
    }
    return square;
}

} // namespace

ScopeBlips::ScopeBlips(const DisplayList& list, const SkyEntry& sky) : m_square(squareOf(list))
{
    std::unordered_map<std::string, const Aircraft*> byID;
    for (const Aircraft& aircraft : sky.aircraft)
        byID.try_emplace(nodeID(aircraft.id()), &aircraft);
    for (const DisplayItem& item : list.items) {
        const auto* pictogram = std::get_if<Pictogram>(&item);
        const auto found = pictogram != nullptr && pictogram->id ? byID.find(*pictogram->id) : byID.end();
        if (found != byID.end())
            m_blips.push_back(
                {.aircraft = found->second, .center = toQt(pictogram->center), .side = pictogram->side});
    }
}

std::optional<std::size_t> ScopeBlips::at(const QPointF& place) const
{
    std::optional<std::size_t> nearest;
    double least = reach;
    for (std::size_t blip = 0; blip < m_blips.size(); ++blip) {
        const double away = QLineF{m_blips[blip].center, place}.length();
        if (away > least)
            continue;
        least = away;
        nearest = blip;
    }
    return nearest;
}

std::optional<std::size_t> ScopeBlips::of(const std::string& hex) const
{
    const auto found = std::ranges::find(
        m_blips, hex, [](const Blip& blip) -> const std::string& { return blip.aircraft->hex; });
    if (found == m_blips.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_blips.begin());
}

} // namespace skyvane
