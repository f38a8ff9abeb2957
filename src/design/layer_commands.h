// The commands of the pages that add and remove layers, on a design and its current record. None of
// them lays the design out.
#pragma once

#include "composition/records.h"

namespace lx {

enum class CommandAnswer {
    done,      // the design has changed
    nothing,   // no room, nothing selected: refused silently
    wrongType  // an element of another family than the design's
};

// The design that a command works on. current points at the head, at a layer, or is null.
struct DesignEdit {
    RezChain& chain;
    CRez*& current;
};

// Bearing length of elements that follow the opening, at each end: the head's, which becomes the
// default when it is 0.
std::int32_t settledBearing(CRez& head);

// A copy of the offered element behind the current record, or at the end when that is not in the
// chain; null = nothing selected.
CommandAnswer addPrecast(DesignEdit design, const CRez* element);
// Insulation and a space as the precast page adds them, filling the free space of the wall.
CommandAnswer addInsulation(DesignEdit design);
CommandAnswer addSpace(DesignEdit design);
// Removes the current layer; the one behind it becomes current, else the one before it.
CommandAnswer removeCurrent(DesignEdit design);

}  // namespace lx
