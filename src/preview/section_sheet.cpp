#include "preview/section_sheet.h"

#include <algorithm>

#include "platform/numbers.h"

namespace lx {

int truncatedPixel(double value) {
    constexpr int limit = 2'000'000'000;
    return std::clamp(truncateToInt(value), -limit, limit);
}

int SectionSheet::x(std::int64_t mm) const {
    return truncatedPixel(scale.origin.x + static_cast<double>(mm) * scale.scale);
}

int SectionSheet::y(std::int64_t mm) const {
    return truncatedPixel(scale.origin.y - static_cast<double>(mm) * scale.scale);
}

void SectionSheet::line(std::initializer_list<Point> points) {
    const Point* point = points.begin();
    canvas.moveTo(*point);
    while (++point != points.end()) canvas.lineTo(*point);
}

}  // namespace lx
