#include "companion/window/window_place.h"

#include <QMargins>

#include <algorithm>

namespace skyvane::WindowPlace {

namespace {

constexpr QMargins usualFrame{8, 40, 8, 8};

QRect room(const QRect& available)
{
    return available.marginsRemoved(usualFrame);
}

} // namespace

QSize fitted(const QSize& size, const QRect& available)
{
    return size.boundedTo(room(available).size());
}

QRect fitted(const QRect& remembered, const QRect& available)
{
    if (available.contains(remembered))
        return remembered;
    const QRect inside = room(available);
    QRect place{remembered.topLeft(), remembered.size().boundedTo(inside.size())};
    place.moveLeft(std::clamp(place.left(), inside.left(), inside.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), inside.top(), inside.bottom() + 1 - place.height()));
    return place;
}

} // namespace skyvane::WindowPlace
