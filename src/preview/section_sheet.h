// What the parts of the section drawing share: the canvas, the way from millimetres to pixels, pens
// and fonts, and the regions made so far.
#pragma once

#include <cstdint>
#include <initializer_list>

#include "composition/section_scale.h"
#include "platform/canvas.h"
#include "preview/hit_regions.h"

namespace lx {

inline constexpr Color previewWhite{255, 255, 255};
inline constexpr Color previewMagenta{238, 0, 238};
inline constexpr Color previewGrey{238, 238, 238};

inline Font labelFont() {
    return {.dialogFont = true};
}
inline Font dimensionFont() {
    return {.height = 15, .pitchAndFamily = 0x31};
}
// Steps of the head run upward.
inline Font verticalFont() {
    return {.height = 15, .escapement = 900, .pitchAndFamily = 0x31};
}

// Truncated towards zero, and held so far inside the range of int that the lengths of a picture
// can be added.
int truncatedPixel(double value);

struct SectionSheet {
    Canvas& canvas;
    SectionScale scale;
    int height = 0;      // px of the preview
    HitRegions regions;  // oldest first while the picture is being drawn

    // mm from the first wall face, mm above level 0
    int x(std::int64_t mm) const;
    int y(std::int64_t mm) const;
    Point at(std::int64_t xMm, std::int64_t yMm) const { return {x(xMm), y(yMm)}; }

    // From point to point with the current pen.
    void line(std::initializer_list<Point> points);
};

}  // namespace lx
