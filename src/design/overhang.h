// How far a lintel reaches beyond the opening at each end, as the plan shows it.
#pragma once

#include "composition/CRez.h"

namespace lx {

// The head's bearing length becomes the overhang of its first layer, mm, negative for one that is
// shorter than the opening; 0 without layers. To be done when the plan that the user sees has to be
// drawn anew, and at no other time: elsewhere a bearing of 0 means the default one.
// openingWidth in mm.
void settleOverhang(CRez& head, double openingWidth);

// Whether another overhang can be typed: an element of a fixed length does not follow it.
bool overhangEditable(const CRez& head);

}  // namespace lx
