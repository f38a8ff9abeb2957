// Offers: the catalogue elements of one type that suit the opening, as ready-made layer records.
#pragma once

#include <vector>

#include "catalogue/CPreklItem.h"
#include "composition/CRez.h"

namespace lx {

// Chain of offered records in catalogue order. type from 0; openingWidth in mm as the call has it;
// headLength is the design's opening width in whole mm. chosen: items that stay however oversized.
RezChain BuildPrecastOffer(const CPreklItem* catalogue, std::int32_t type, double openingWidth,
                           std::int32_t headLength,
                           const std::vector<const CPreklItem*>& chosen = {});
// Appends the picked items to a precast offer, each as it stands in the catalogue; those that the
// offer holds already, the same in all but the letter case of the designation, are left out.
void addPicked(RezChain& offer, const std::vector<const CPreklItem*>& picked);
// headBearing: the head's; 0 gives opening + 300.
RezChain BuildSteelOffer(const CPreklItem* catalogue, std::int32_t type, std::int32_t headLength,
                         std::int32_t headBearing);
// The record that a catalogue item becomes, its length not yet following the opening.
std::unique_ptr<CRez> offerRecord(const CPreklItem& item, std::int32_t type, std::int32_t itemIndex,
                                  Kind kind);

// Order of the precast list: without regard to letter case, runs of digits by value (750 before
// 1000).
bool offerLess(std::string_view a, std::string_view b);
// Indices of the chain's records in that order; equal ones keep the chain's order.
std::vector<int> offerOrder(const RezChain& offer);

// Names of the catalogue's type records, in chain order.
std::vector<Text> typeNames(const CPreklItem* catalogue);

}  // namespace lx
