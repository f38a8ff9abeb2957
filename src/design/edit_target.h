// A value of the design that can be typed over in a preview, or changed there by a button, named by
// its record rather than by an address, so that a name whose record is gone is noticed.
#pragma once

#include "composition/CRez.h"

namespace lx {

enum class EditField { width, height, length, headBearing, kind, bendRun, bendStep };

struct EditTarget {
    const CRez* record = nullptr;  // compared, never followed
    EditField field = EditField::width;
    int bend = 0;  // bendRun and bendStep: bend of the head, from 0
    bool operator==(const EditTarget&) const = default;
};

// The number; null when the record is no longer in the chain, or has no such bend, and for the
// kind.
std::int32_t* valueOf(const RezChain& design, const EditTarget& target);
// The record; null when it is no longer in the chain.
CRez* recordOf(const RezChain& design, const EditTarget& target);

}  // namespace lx
