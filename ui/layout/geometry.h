#pragma once

namespace skyvane {

/// Points; x grows to the right, y downwards.
struct Point {
    double x;
    double y;

    bool operator==(const Point&) const = default;
};

struct Size {
    double width;
    double height;

    bool operator==(const Size&) const = default;
};

struct Rect {
    double x;
    double y;
    double width;
    double height;

    Point center() const { return {x + width / 2, y + height / 2}; }

    bool operator==(const Rect&) const = default;
};

} // namespace skyvane
