// Which remembered values are offered for a number of the section preview. The number is told by
// the regions around it, newest first, and by where it stands.
#pragma once

#include "preview/hit_regions.h"

namespace lx {

// Section of the dialog's settings for the region of that index, one of a number.
Text valueFamily(const HitRegions& regions, std::size_t clicked, const RezChain& design);

}  // namespace lx
