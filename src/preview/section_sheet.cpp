#include "preview/section_sheet.h"

namespace lx {

int SectionSheet::x(std::int64_t mm) const {
    return truncatedPixel(scale.origin.x + static_cast<double>(mm) * scale.scale);
}

int SectionSheet::y(std::int64_t mm) const {
    return truncatedPixel(scale.origin.y - static_cast<double>(mm) * scale.scale);
}

}  // namespace lx
