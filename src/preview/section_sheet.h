// What the parts of the section drawing share beside the sheet: the way from millimetres to pixels.
#pragma once

#include <cstdint>

#include "composition/section_scale.h"
#include "preview/sheet.h"

namespace lx {

struct SectionSheet : Sheet {
    SectionScale scale;
    int height = 0;  // px of the preview

    // mm from the first wall face, mm above level 0
    int x(std::int64_t mm) const;
    int y(std::int64_t mm) const;
    Point at(std::int64_t xMm, std::int64_t yMm) const { return {x(xMm), y(yMm)}; }
};

}  // namespace lx
