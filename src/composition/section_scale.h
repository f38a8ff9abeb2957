// How a section is scaled into the section preview, and what of a design depends on that. A layer
// that stands on a sloping step of the head is lifted to a level measured in pixels, so the level
// that is shown, stored and compared depends on the size of the preview.
#pragma once

#include "composition/CRez.h"
#include "platform/geometry.h"

namespace lx {

struct SectionScale {
    double scale = 1;  // pixels per mm
    Point origin;      // pixels: first wall face at level 0
};
// wall in mm, client in pixels.
SectionScale sectionScale(std::int32_t wall, Size client);

// Screen lines between which a layer's bottom stands on the sloping step; top is above bottom.
// Both 0 when the head has no flagged bend.
struct FlaggedBand {
    int bottom = 0;
    int top = 0;
};
FlaggedBand flaggedBand(const CRez& head, const SectionScale& scale);

bool hasFlaggedBend(const CRez& head);

// What is to be done after each layOut and before drawing: a flagged bend reaches the second wall
// face, and layers that stand on it are lifted to its top. Does nothing without a flagged bend, or
// for an empty preview. Doing it twice changes nothing more.
void settleSection(CRez& head, Size client);

}  // namespace lx
