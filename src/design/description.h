// The description of a lintel that goes into the drawing: its layers, equal neighbours counted.
#pragma once

#include "composition/CRez.h"

namespace lx {

// For a design that has been laid out. Lines joined by CR LF; empty for a design of spaces only.
// Spaces are passed over and do not part a group.
Text descriptionSummary(const CRez& head);

}  // namespace lx
