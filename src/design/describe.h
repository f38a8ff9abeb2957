// The design as text for programs that compare: every field of every record and bend, one a line.
#pragma once

#include "composition/CRez.h"

namespace lx {

// "record 0 kind -1", "record 0 width 300", ..., "bend 0 run 150", ..., "current 0"; current -1 is
// no record of the chain.
Text describeDesign(const CRez* head, const CRez* current);

}  // namespace lx
