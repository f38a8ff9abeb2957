// Automatic composition: the layers of a design are made anew from the element chosen in an offer.
// Both functions lay the design out and return the record that is to be current, null when there is
// no design or no element is chosen; then nothing has changed. The head stays.
#pragma once

#include <span>

#include "composition/CRez.h"
#include "settings/profile.h"

namespace lx {

// By the rules file, to 20,000 layers at most, or else the chosen lintel repeated with insulation
// at the first wall face. chosen: in its offer chain, whose order decides which element X stands
// for. listed: the offer in the order of its list, in which the other letters are looked for.
CRez* composePrecast(RezChain& design, const CRez* chosen, std::span<const CRez* const> listed,
                     const Profile& rules);
// The chosen section repeated behind insulation into which the first one nests. An open section is
// turned towards the insulation in the offer itself; one that is turned already nests into nothing.
CRez* composeSteel(RezChain& design, CRez* chosen);

}  // namespace lx
