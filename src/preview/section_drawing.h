// Draws the section of a design: the wall with its bent head, the layers, dimensions and texts. It
// reads the design alone; settleSection (composition/section_scale.h) must have been there before.
#pragma once

#include "composition/CRez.h"
#include "platform/canvas.h"
#include "preview/hit_regions.h"

namespace lx {

struct SectionInput {
    const CRez* head = nullptr;     // null: a black field
    const CRez* current = nullptr;  // highlighted, with its values beside it
    Size client;                    // px
    double openingWidth = 0;        // mm
    bool exteriorLeft = true;       // the first wall face is the exterior one
    int dropMarker = -1;            // mm from the first wall face; negative = none
    Size iconSize{32, 32};          // of the mirror button
};

// Answers the regions of the picture, none without a head. The current record alone has regions
// for its values.
HitRegions drawSection(Canvas& canvas, const SectionInput& input);

}  // namespace lx
