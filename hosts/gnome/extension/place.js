// SPDX-License-Identifier: MIT

/// Where a window says in its title that it belongs: the screen by its connector, and the place on it in points. Null for a title that
/// says no place.
export function placeOf(title) {
    const found = /^skyvane:(\S+):(-?\d+),(-?\d+)$/.exec(title ?? '');
    return found && {connector: found[1], x: Number(found[2]), y: Number(found[3])};
}

/// That place on the stage, of whose units the screen has so many a point.
export function onStage(place, screen) {
    return [screen.x + place.x * screen.unitsPerPoint, screen.y + place.y * screen.unitsPerPoint];
}

/// A rectangle of the stage in points from the screen's corner: left, top, width and height.
export function onScreen(area, screen) {
    return [area.x - screen.x, area.y - screen.y, area.width, area.height]
        .map(length => Math.round(length / screen.unitsPerPoint));
}
