// What is told of layers in words: their names where they are shown, the description that goes into
// the drawing, the text under "Vlastnosti:".
#pragma once

#include "composition/CRez.h"

namespace lx {

// The name; in an element whose length follows the opening the first "?" becomes its length in mm.
Text shownDesignation(const CRez& layer);

// For a design that has been laid out. Lines joined by CR LF; empty for a design of spaces only.
// Spaces are passed over and do not part a group.
Text descriptionSummary(const CRez& head);

// openingWidth in mm, as the call has it. Null and the head are the wall.
Text propertiesOfRecord(const CRez* record, double openingWidth);

// An offered element under its catalogue name, "?" and all. Only precast ones show their
// composition letter.
Text propertiesOfOffer(const CRez& element, double openingWidth, bool precast);

}  // namespace lx
