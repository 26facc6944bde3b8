#include "host/placing/placing.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace skyvane::Placing {

namespace {

bool isRight(ScreenCorner corner)
{
    return corner == ScreenCorner::topRight || corner == ScreenCorner::bottomRight;
}

bool isBottom(ScreenCorner corner)
{
    return corner == ScreenCorner::bottomLeft || corner == ScreenCorner::bottomRight;
}

ScreenCorner cornerOf(bool isAtRight, bool isAtBottom)
{
    if (isAtBottom)
        return isAtRight ? ScreenCorner::bottomRight : ScreenCorner::bottomLeft;
    return isAtRight ? ScreenCorner::topRight : ScreenCorner::topLeft;
}

/// One side of a rectangle along one axis: QRect's own right and bottom are a pixel short.
struct Span {
    int start;
    int length;

    int end() const { return start + length; }
};

Span across(const QRect& rect)
{
    return {rect.x(), rect.width()};
}

Span down(const QRect& rect)
{
    return {rect.y(), rect.height()};
}

int inside(Span span, Span area)
{
    return std::clamp(span.start, area.start, std::max(area.start, area.end() - span.length));
}

/// Whether the two would touch or nearly so when moved along the other axis.
bool isBeside(Span one, Span other)
{
    return one.start < other.end() + Placing::grid && other.start < one.end() + Placing::grid;
}

int nearestGridLine(int start, int origin)
{
    const int steps = (start - origin + (start < origin ? -grid / 2 : grid / 2)) / grid;
    return origin + steps * grid;
}

int snappedStart(Span span, Span area, const std::vector<Span>& neighbours)
{
    int best = nearestGridLine(span.start, area.start);
    int reach = grid + 1; // How near an edge must be; a nearer one takes its place.
    for (const Span neighbour : neighbours) {
        for (const int start : {neighbour.end() + grid, neighbour.start - grid - span.length, neighbour.start,
                 neighbour.end() - span.length}) {
            if (std::abs(start - span.start) < reach) {
                reach = std::abs(start - span.start);
                best = start;
            }
        }
    }
    return inside({best, span.length}, area);
}

long long overlap(const QRect& one, const QRect& other)
{
    const QRect common = one.intersected(other);
    return common.isEmpty() ? 0 : 1LL * common.width() * common.height();
}

/// Its own screen, whatever socket that is in now, else the one of the same name; null where there is
/// neither.
const ScreenArea* homeOf(const Placement& placement, const std::vector<ScreenArea>& screens)
{
    const auto find = [&](const auto& isMeant) {
        const auto found = std::ranges::find_if(screens, isMeant);
        return found == screens.end() ? nullptr : &*found;
    };
    const auto hasName = [&](const ScreenArea& screen) { return screen.name == placement.screen; };
    const auto isSame = [&](const ScreenArea& screen) {
        return !screen.identity.empty() && screen.identity == placement.identity;
    };
    if (const ScreenArea* both = find([&](const ScreenArea& s) { return hasName(s) && isSame(s); }))
        return both;
    if (const ScreenArea* moved = find(isSame))
        return moved;
    return find(hasName);
}

/// As it is remembered, which may be outside the area.
QRect rememberedFrame(const Placement& placement, QSize size, const QRect& area)
{
    const auto start = [](Span space, int length, int inset, bool isFromEnd) {
        return isFromEnd ? space.end() - inset - length : space.start + inset;
    };
    return {
        QPoint{
            start(across(area), size.width(), placement.inset.x(), isRight(placement.corner)),
            start(down(area), size.height(), placement.inset.y(), isBottom(placement.corner)),
        },
        size,
    };
}

/// Whether the user put one over the other; so they stay. Of places that do not say in which room they were
/// chosen it is taken for granted.
bool belongTogether(const Placing::Remembered& one, const Placing::Remembered& other)
{
    const Placement& here = one.placement;
    const Placement& there = other.placement;
    if (here.screen != there.screen)
        return false;
    if (here.area.isEmpty() || there.area.isEmpty())
        return true;
    const QRect room{{}, here.area};
    return here.area == there.area
        && rememberedFrame(here, one.size, room).intersects(rememberedFrame(there, other.size, room));
}

bool covers(const QRect& frame, const std::vector<QRect>& others)
{
    return std::ranges::any_of(others, [&](const QRect& other) { return frame.intersects(other); });
}

int distance(const QRect& frame, const QRect& area)
{
    return (frame.center() - area.center()).manhattanLength();
}

} // namespace

std::optional<ScreenArea> screenOf(const QRect& frame, const std::vector<ScreenArea>& screens)
{
    const auto best
        = std::min_element(screens.begin(), screens.end(), [&](const ScreenArea& a, const ScreenArea& b) {
              const auto overlapA = overlap(frame, a.area);
              const auto overlapB = overlap(frame, b.area);
              return overlapA != overlapB ? overlapA > overlapB
                                          : distance(frame, a.area) < distance(frame, b.area);
          });
    return best == screens.end() ? std::nullopt : std::optional{*best};
}

std::optional<Placement> placement(const QRect& frame, const std::vector<ScreenArea>& screens)
{
    const auto screen = screenOf(frame, screens);
    if (!screen)
        return std::nullopt;
    const int left = across(frame).start - across(screen->area).start;
    const int right = across(screen->area).end() - across(frame).end();
    const int top = down(frame).start - down(screen->area).start;
    const int bottom = down(screen->area).end() - down(frame).end();
    const bool isAtRight = right < left;
    const bool isAtBottom = bottom < top;
    return Placement{
        .screen = screen->name,
        .corner = cornerOf(isAtRight, isAtBottom),
        .inset = {isAtRight ? right : left, isAtBottom ? bottom : top},
        .identity = screen->identity,
        .area = screen->area.size(),
    };
}

QRect frame(const Placement& placement, QSize size, const std::vector<ScreenArea>& screens)
{
    if (screens.empty())
        return {QPoint{}, size};
    const ScreenArea* home = homeOf(placement, screens);
    const QRect area = home == nullptr ? screens.front().area : home->area;
    return inside(rememberedFrame(placement, size, area), area);
}

std::vector<QRect> frames(const std::vector<Remembered>& widgets, const std::vector<ScreenArea>& screens)
{
    std::vector<QRect> frames;
    std::vector<std::size_t> settled;
    std::vector<std::size_t> displaced;
    for (std::size_t index = 0; index < widgets.size(); ++index) {
        const auto& [placement, size] = widgets[index];
        const QRect place = frames.emplace_back(frame(placement, size, screens));
        const ScreenArea* home = homeOf(placement, screens);
        const bool isAtHome = home != nullptr && place == rememberedFrame(placement, size, home->area);
        const bool isInTheWay = std::ranges::any_of(settled, [&](std::size_t other) {
            return place.intersects(frames[other]) && !belongTogether(widgets[index], widgets[other]);
        });
        (isAtHome && !isInTheWay ? settled : displaced).push_back(index);
    }
    std::vector<QRect> taken;
    std::ranges::transform(
        settled, std::back_inserter(taken), [&](std::size_t index) { return frames[index]; });
    for (const std::size_t index : displaced) {
        const auto screen = screenOf(frames[index], screens);
        if (screen && covers(frames[index], taken))
            frames[index] = freeFrame(frames[index].size(), screen->area, taken);
        taken.push_back(frames[index]);
    }
    return frames;
}

QRect snapped(QRect frame, const QRect& area, const std::vector<QRect>& neighbours)
{
    std::vector<Span> columns;
    std::vector<Span> rows;
    for (const QRect& neighbour : neighbours) {
        if (isBeside(down(frame), down(neighbour)))
            columns.push_back(across(neighbour));
        if (isBeside(across(frame), across(neighbour)))
            rows.push_back(down(neighbour));
    }
    frame.moveTo(
        snappedStart(across(frame), across(area), columns), snappedStart(down(frame), down(area), rows));
    return frame;
}

QRect inside(const QRect& frame, const QRect& area)
{
    return {QPoint{inside(across(frame), across(area)), inside(down(frame), down(area))}, frame.size()};
}

QRect freeFrame(QSize size, const QRect& area, const std::vector<QRect>& taken)
{
    constexpr int margin = 3 * grid;
    const auto isFree = [&](const QRect& frame) {
        const QRect room = frame.adjusted(-grid, -grid, grid, grid);
        return std::none_of(
            taken.begin(), taken.end(), [&](const QRect& other) { return room.intersects(other); });
    };
    const int right = across(area).end() - margin - size.width();
    const int bottom = down(area).end() - margin - size.height();
    for (int x = right; x >= area.x() + margin; x -= grid) {
        for (int y = area.y() + margin; y <= bottom; y += grid) {
            if (isFree({QPoint{x, y}, size}))
                return {QPoint{x, y}, size};
        }
    }
    return frame({.screen = {}, .corner = ScreenCorner::topRight, .inset = {margin, margin}}, size,
        {{.name = {}, .area = area}});
}

} // namespace skyvane::Placing
