// What the parts of the section drawing share beside the sheet: the way from millimetres to pixels,
// and the records drawn that way.
#pragma once

#include <cstdint>

#include "composition/CRez.h"
#include "composition/section_scale.h"
#include "preview/sheet.h"

namespace lx {

struct SectionSheet : Sheet {
    SectionScale scale;
    int height = 0;  // px of the preview

    // mm from the first wall face, mm above level 0
    int x(std::int64_t mm) const {
        return truncatedPixel(scale.origin.x + static_cast<double>(mm) * scale.scale);
    }
    int y(std::int64_t mm) const {
        return truncatedPixel(scale.origin.y - static_cast<double>(mm) * scale.scale);
    }
    Point at(std::int64_t xMm, std::int64_t yMm) const { return {x(xMm), y(yMm)}; }
};

// The bent head, its outline and its dimensions; regions of its runs and steps.
void drawHead(SectionSheet& sheet, const CRez& head);

// The symbol of the layer's kind; of the current one also its values or its mirror button, of that
// size, with their regions.
void drawLayer(SectionSheet& sheet, const CRez& layer, bool current, Size mirrorButton);

}  // namespace lx
