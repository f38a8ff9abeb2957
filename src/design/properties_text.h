// The text under "Vlastnosti:": what the dialog tells about the current record or about the element
// selected in an offer.
#pragma once

#include "composition/CRez.h"

namespace lx {

// openingWidth in mm, as the call has it. Null and the head are the wall.
Text propertiesOfRecord(const CRez* record, double openingWidth);

// An offered element under its catalogue name, "?" and all. Only precast ones show their
// composition letter.
Text propertiesOfOffer(const CRez& element, double openingWidth, bool precast);

}  // namespace lx
