// Layers that come from no catalogue.
#pragma once

#include "composition/CRez.h"

namespace lx {

// Least free space that is insulated unasked or offered to be, mm.
inline constexpr std::int32_t leastInsulation = 20;

// Makes the record insulation, a space or a cast part: its kind and the name that goes with it.
// Everything else stays as it is.
void makeSpecial(CRez& layer, Kind kind);

}  // namespace lx
