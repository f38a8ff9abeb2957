// The list of an offer: the elements that suit the opening, those that no longer fit the wall in
// red.
#pragma once

#include "design/offer.h"
#include "platform/controls.h"

namespace lx {

// Looks shared by the lists of the pages.
inline constexpr Color unsuitableText{233, 17, 12};
inline constexpr Color listSelection{113, 113, 255};
inline constexpr std::size_t listTextLimit = 124;  // bytes

// A row as the lists of the pages show it.
ListRow listRow(std::string_view text, bool suitable);

class CNabidka {
public:
    explicit CNabidka(ListBox& list) : m_list(list) {}

    ListBox& list() { return m_list; }
    // freeSpace in mm: wider elements are red.
    void fill(const Offer& offer, std::int32_t freeSpace);
    // Only the rows whose look has changed.
    void refreshLooks(const Offer& offer, std::int32_t freeSpace);

private:
    ListBox& m_list;
};

}  // namespace lx
