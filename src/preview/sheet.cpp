#include "preview/sheet.h"

#include <algorithm>

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
