#include "design/offer.h"

namespace lx {

Offer::Offer(RezChain records) : m_records(std::move(records)) {
    for (CRez* record = m_records.head(); record != nullptr; record = record->next) {
        m_rows.push_back(record);
    }
    select(0);
}

Offer::Offer(RezChain records, const std::vector<int>& order) : Offer(std::move(records)) {
    std::vector<CRez*> sorted;
    sorted.reserve(order.size());
    for (const int index : order) sorted.push_back(m_rows[static_cast<std::size_t>(index)]);
    m_rows = std::move(sorted);
    select(0);
}

void Offer::select(int row) {
    m_selected = row >= 0 && row < count() ? row : -1;
}

}  // namespace lx
