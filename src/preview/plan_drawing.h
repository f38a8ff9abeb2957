// Draws the plan of a design: the wall from above with the opening, the layers as strips along it,
// the dimensions, and the section folded into the plan. It reads the design alone; settleOverhang
// (design/overhang.h) must have been there before.
#pragma once

#include "composition/CRez.h"
#include "platform/canvas.h"
#include "preview/hit_regions.h"

namespace lx {

struct PlanInput {
    const CRez* head = nullptr;     // null: a black field
    const CRez* current = nullptr;  // highlighted, over all others
    Size client;                    // px
    double openingWidth = 0;        // mm
    bool foldedSection = false;
};

// Answers the regions of the picture, none without a head: the overhang where it can be typed over,
// and the level where the folded section shows it.
HitRegions drawPlan(Canvas& canvas, const PlanInput& input);

}  // namespace lx
