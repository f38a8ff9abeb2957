// The layer commands of the pages and of the design's menu: when they may be used, and what they do
// to a design and its current record. None of them lays the design out.
#pragma once

#include "composition/CRez.h"

namespace lx {

// Which of the layer buttons may be used now.
struct Availability {
    bool remove = false;
    bool addPrecast = false;
    bool addSteel = false;
    bool addMonolith = false;
    bool insertInsulation = false;
    bool insertSpace = false;
    bool operator==(const Availability&) const = default;
};

// Everything is unavailable without a head. precast and steel are the elements selected in the
// offers, null when an offer is empty or nothing is selected in it.
Availability availability(const CRez* head, const CRez* current, const CRez* precast,
                          const CRez* steel);

// Free space for insulation behind the current record, mm: it may reach into the open side of a
// steel section before it.
std::int64_t insulationRoom(const CRez& head, const CRez* current);

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

// A copy of the offered element behind the current record, or at the end when that is not in the
// chain; null = nothing selected. A steel section at the end takes the length of the opening with
// the head's bearing, between others it keeps the offer's.
CommandAnswer addPrecast(DesignEdit design, const CRez* element);
CommandAnswer addSteel(DesignEdit design, const CRez* element);
// Insulation and a space as the precast page adds them, filling the free space of the wall.
CommandAnswer addInsulation(DesignEdit design);
CommandAnswer addSpace(DesignEdit design);
// Insulation as the pages of steel and cast parts add it: it reaches into an open section before
// it and over the bearing on both sides, and does not fill a wall that is still empty.
CommandAnswer addSteelInsulation(DesignEdit design);
// A cast part that fills the free space, in a design of any family.
CommandAnswer addMonolith(DesignEdit design);
// A thin insulation behind the current record whatever room there is.
CommandAnswer insertInsulation(DesignEdit design);
// Moves the current layer before another one, or behind the last one when the target is the head.
// Nothing happens onto itself or the layer behind it.
CommandAnswer moveCurrent(DesignEdit design, CRez* target);
// Removes the current layer; the one behind it becomes current, else the one before it.
CommandAnswer removeCurrent(DesignEdit design);
// The same, but the record before it becomes current.
CommandAnswer removeCurrentGoingBack(DesignEdit design);

}  // namespace lx
