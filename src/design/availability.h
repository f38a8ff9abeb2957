// Which of the layer buttons may be used now.
#pragma once

#include "composition/CRez.h"

namespace lx {

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

}  // namespace lx
