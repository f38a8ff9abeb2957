#include "preview/section_zigzag.h"

#include <algorithm>
#include <cstdint>

#include "composition/saturate.h"

namespace lx {

void drawZigzag(Canvas& canvas, Point start, int top, int step, int pictureHeight) {
    constexpr int leastStep = 8;
    if (step < leastStep) return;
    const auto corner = [&](std::int64_t n) {
        const std::int64_t across = n % 2 == 0 ? 0 : 2 * std::int64_t{step};
        return Point{saturated(start.x + across), saturated(start.y - n * step)};
    };
    const std::int64_t last = (std::int64_t{start.y} - top - 1) / step;
    const std::int64_t below = (std::int64_t{start.y} - pictureHeight) / step;
    std::int64_t n = std::clamp<std::int64_t>(below, 0, std::max<std::int64_t>(last, 0));
    canvas.moveTo(corner(n));
    while (n < last && corner(n).y >= 0) canvas.lineTo(corner(++n));
}

}  // namespace lx
