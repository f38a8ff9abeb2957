// Bearing lengths of elements that follow the opening: how far they reach into the wall at each
// end.
#pragma once

#include "composition/CRez.h"

namespace lx {

// For a head that has none of its own, mm.
inline constexpr std::int32_t defaultBearing = 150;

// The head's bearing length, mm, which becomes the default when it is 0.
std::int32_t settledBearing(CRez& head);
// Opening width and the bearing at both ends, mm.
std::int32_t lengthOver(std::int32_t opening, std::int32_t bearing);

}  // namespace lx
