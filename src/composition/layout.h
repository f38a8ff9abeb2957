// Where the layers of a design lie: offsets across the wall, levels of the head above them, free
// space.
#pragma once

#include <vector>

#include "composition/CRez.h"

namespace lx {

// Computes offset and level of every layer behind the head. The head's own offset and level stay.
void layOut(CRez& head);
// The offsets alone.
void placeLayers(CRez& head);
// For each layer in order: the highest level of the bent head over the part of the wall where it
// lies, mm.
std::vector<std::int32_t> levelsAbove(const CRez& head);
// Wall thickness minus the end of the last layer, mm; may be negative.
std::int32_t freeSpace(const CRez& head);
int LayerCount(const CRez& head);

// By the first layer that is of one; insulation and spaces are of none.
Family DesignFamily(const CRez& head);

}  // namespace lx
