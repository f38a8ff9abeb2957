// An offer as its page lists it: the records in the order of the list, and which one is selected.
#pragma once

#include <span>
#include <vector>

#include "composition/CRez.h"

namespace lx {

class Offer {
public:
    Offer() = default;
    // The chain's own order. The first entry is selected.
    explicit Offer(RezChain records);
    // A list order: indices into the chain.
    Offer(RezChain records, const std::vector<int>& order);

    int count() const { return static_cast<int>(m_rows.size()); }
    const CRez& row(int index) const { return *m_rows[static_cast<std::size_t>(index)]; }
    // -1 = none.
    int selected() const { return m_selected; }
    // Anything outside the list selects nothing.
    void select(int row);
    const CRez* selectedRecord() const { return m_selected < 0 ? nullptr : &row(m_selected); }
    // To be changed in the offer itself; its links lead on in the order of the chain.
    CRez* selectedRecord() {
        return m_selected < 0 ? nullptr : m_rows[static_cast<std::size_t>(m_selected)];
    }
    // In list order.
    std::span<const CRez* const> rows() const { return m_rows; }

private:
    RezChain m_records;
    std::vector<CRez*> m_rows;  // into m_records, which alone owns them
    int m_selected = -1;
};

}  // namespace lx
