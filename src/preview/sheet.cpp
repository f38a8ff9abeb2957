#include "preview/sheet.h"

#include <algorithm>

#include "composition/saturate.h"
#include "platform/numbers.h"

namespace lx {

namespace {

constexpr Color ground{0, 0, 0};

}  // namespace

int truncatedPixel(double value) {
    constexpr int limit = 2'000'000'000;
    return std::clamp(truncateToInt(value), -limit, limit);
}

void Sheet::line(std::initializer_list<Point> points) {
    const Point* point = points.begin();
    canvas.moveTo(*point);
    while (++point != points.end()) canvas.lineTo(*point);
}

void Sheet::tick(Point middle) {
    const auto& [x, y] = middle;
    line({{x - halfTick, y + halfTick}, {x + halfTick, y - halfTick}});
}

void Sheet::zigzag(Point start, int end, int step, int extent, bool upward) {
    constexpr int leastStep = 8;
    if (step < leastStep) return;
    const std::int64_t from = upward ? start.y : start.x;
    const auto corner = [&](std::int64_t n) {
        const bool onEdge = n % 2 == (upward ? 0 : 1) || n == 0;
        const std::int64_t across = onEdge ? 0 : 2 * std::int64_t{step};
        if (upward) return Point{saturated(start.x + across), saturated(start.y - n * step)};
        return Point{saturated(start.x - n * step), saturated(start.y - across)};
    };
    const auto seen = [&](std::int64_t n) { return from - n * step >= 0; };
    const std::int64_t last = (from - end - (upward ? 1 : 0)) / step;
    std::int64_t n =
        std::clamp<std::int64_t>((from - extent) / step, 0, std::max<std::int64_t>(last, 0));
    canvas.moveTo(corner(n));
    while (n < last && seen(n)) canvas.lineTo(corner(++n));
}

void Sheet::addRegion(bool absoluteOnly, int kind, const EditTarget& target, Point p, Size size) {
    regions.push_back({absoluteOnly, kind, target, p.x, p.y, size.width, size.height});
}

void Sheet::addUprightRegion(bool absoluteOnly, int kind, const EditTarget& target, Point p,
                             Size size) {
    addRegion(absoluteOnly, kind, target, {p.x, p.y - size.width}, {size.height, size.width});
}

bool prepareGround(Canvas& canvas, Size client) {
    if (client.width <= 0 || client.height <= 0) return false;
    const Rect all{0, 0, client.width, client.height};
    canvas.setClip(all);
    canvas.setTextColor(previewWhite);
    canvas.fillRect(all, ground);
    return true;
}

HitRegions newestFirst(HitRegions oldestFirst) {
    std::reverse(oldestFirst.begin(), oldestFirst.end());
    return oldestFirst;
}

}  // namespace lx
