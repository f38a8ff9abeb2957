// What the parts of the plan drawing share beside the sheet: what is to be seen, the ways from
// millimetres to pixels, and the records drawn those ways.
#pragma once

#include "preview/plan_drawing.h"
#include "preview/sheet.h"

namespace lx {

struct PlanSheet : Sheet {
    Size client;
    double scale = 1;          // px per mm
    std::int64_t opening = 0;  // mm, whole and not negative
    bool foldedSection = false;
    bool overhangEditable = false;
    Point jamb;    // px: left end of the opening, above the first wall face
    Point middle;  // px: middle of the opening on the second wall face, which layers lie along

    // Of the head: mm across the wall from its first face, mm along it from the left jamb.
    int faceY(std::int64_t across) const;
    int alongX(double mm) const;
    // Of a layer: mm along the wall from the middle, mm across it.
    Point strip(double along, double across) const;
    // In the folded section: mm above level 0, which point to the left, and mm across the wall.
    Point folded(std::int64_t level, double across) const;
};

PlanSheet planSheet(Canvas& canvas, const PlanInput& input);

// Wall faces, jambs and dimensions; in the folded section the bent bottom and the level. Regions of
// the level and the overhang.
void drawPlanHead(PlanSheet& sheet, const CRez& head);

// The layer's strip along the wall, and its shape in the folded section.
void drawPlanLayer(PlanSheet& sheet, const CRez& layer, bool current);

}  // namespace lx
