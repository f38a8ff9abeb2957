// Whether a stored design still suits the opening.
#pragma once

#include "composition/CRez.h"

namespace lx {

// A design suits an opening that its first layer other than insulation is made for; one with a cast
// part, or whose element names no largest opening, suits every opening. A missing name equals an
// empty one, as which it is stored. openingWidth in mm.
bool suitsOpening(const CRez& head, double openingWidth);

}  // namespace lx
