// The ready-made shapes of a bent lintel head.
#pragma once

#include "composition/CRez.h"

namespace lx {

// Replaces the head's bends by those of the shape; their runs divide the wall thickness. shape: 0
// is the straight head, 1 to 5 are bent as the buttons of the geometry page show; anything else
// counts as straight.
void setBends(CRez& head, int shape);

}  // namespace lx
