// The description of a lintel that goes into the drawing: its layers, equal neighbours counted.
#pragma once

#include "composition/records.h"

namespace lx {

// Smallest of 0 and the levels after each bend, mm.
std::int64_t lowestLevel(const CZalom* bends);

// One line of the summary, without its count.
Text layerLabel(const CRez& layer, std::int64_t lowest);

// Lines joined by CR LF; empty for a design of spaces only. Spaces are passed over and do not part
// a group.
Text descriptionSummary(const CRez& head);

}  // namespace lx
