#pragma once

namespace tessaly {

/// A place in points; whether y runs upwards or downwards is the owner's convention.
struct Point {
    double x = 0.0;
    double y = 0.0;

    bool operator==(const Point&) const = default;
};

/// An extent in points.
struct Size {
    double width = 0.0;
    double height = 0.0;

    bool operator==(const Size&) const = default;
};

/// An upright rectangle in points; (x, y) is the corner with the smallest coordinates.
struct Rect {
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;

    double maxX() const { return x + width; }
    double maxY() const { return y + height; }
    Point center() const { return {x + width / 2, y + height / 2}; }

    /// The edges at the smallest coordinates belong to the rectangle, the opposite ones do not.
    bool contains(Point p) const { return p.x >= x && p.x < maxX() && p.y >= y && p.y < maxY(); }

    bool operator==(const Rect&) const = default;
};

/// A straight line from one point to another.
struct Line {
    Point from;
    Point to;

    bool operator==(const Line&) const = default;
};

} // namespace tessaly
