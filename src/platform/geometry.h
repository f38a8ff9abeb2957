// Points, sizes and rectangles in pixels, colours, and dialog units.
#pragma once

#include <cstdint>

namespace lx {

struct Point {
    int x = 0;
    int y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
};

// left and top belong to the rectangle, right and bottom do not.
struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    int width() const { return right - left; }
    int height() const { return bottom - top; }
    Size size() const { return {width(), height()}; }
    bool contains(Point p) const {
        return p.x >= left && p.x < right && p.y >= top && p.y < bottom;
    }
    bool operator==(const Rect&) const = default;
};

struct Color {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Color&) const = default;
};

// A rectangle in dialog units: a quarter of the dialog font's average character width across, an
// eighth of its height down.
struct UnitRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

}  // namespace lx
