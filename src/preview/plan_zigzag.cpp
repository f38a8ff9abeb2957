#include "preview/plan_zigzag.h"

#include <algorithm>
#include <cstdint>

#include "composition/saturate.h"

namespace lx {

void drawPlanZigzag(Canvas& canvas, Point start, int end, int step, int pictureWidth) {
    constexpr int leastStep = 8;
    if (step < leastStep) return;
    const auto corner = [&](std::int64_t n) {
        const bool onEdge = n == 0 || n % 2 != 0;
        const std::int64_t up = onEdge ? 0 : 2 * std::int64_t{step};
        return Point{saturated(start.x - n * step), saturated(start.y - up)};
    };
    const std::int64_t last = (std::int64_t{start.x} - end) / step;
    const std::int64_t beside = (std::int64_t{start.x} - pictureWidth) / step;
    std::int64_t n = std::clamp<std::int64_t>(beside, 0, std::max<std::int64_t>(last, 0));
    canvas.moveTo(corner(n));
    while (n < last && corner(n).x >= 0) canvas.lineTo(corner(++n));
}

}  // namespace lx
