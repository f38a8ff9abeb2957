#include "catalogue/item_rows.h"

#include <algorithm>
#include <cstddef>

#include "catalogue/item_cells.h"
#include "catalogue/natural_order.h"

namespace lx {

// ---- CEntManager

void CEntManager::add(CPreklItem& record) {
    m_listed.push_back(&record);
    record.rowNo = count();
}

CPreklItem* CEntManager::find(std::int32_t number) const {
    if (number < 1 || number > count()) return nullptr;
    return m_listed[static_cast<std::size_t>(number) - 1];
}

void CEntManager::remove(std::int32_t number) {
    if (!find(number)) return;
    const auto behind = m_listed.erase(m_listed.begin() + (number - 1));
    for (auto record = behind; record != m_listed.end(); ++record) --(*record)->rowNo;
}

// ---- ItemRows

void ItemRows::refresh(CPreklItem* chain, std::int32_t type) {
    m_rowNumbers = CEntManager();
    m_rows.clear();
    for (CPreklItem* record = chain; record; record = record->next.get()) {
        if (record->group == type && type > 0) add(*record);
    }
}

void ItemRows::add(CPreklItem& record) {
    m_rowNumbers.add(record);
    m_rows.push_back(record.rowNo);
}

void ItemRows::remove(int row) {
    const std::int32_t number = readField(row);
    if (number < 0) return;
    m_rowNumbers.remove(number);
    m_rows.erase(m_rows.begin() + row);
    for (std::int32_t& other : m_rows) {
        if (other > number) --other;
    }
}

std::int32_t ItemRows::readField(int row) const {
    return row < 0 || row >= count() ? -1 : m_rows[static_cast<std::size_t>(row)];
}

CPreklItem* ItemRows::record(int row) const {
    return m_rowNumbers.find(readField(row));
}

int ItemRows::rowOf(const CPreklItem& record) const {
    // A record listed earlier keeps its number.
    if (m_rowNumbers.find(record.rowNo) != &record) return -1;
    const auto found = std::find(m_rows.begin(), m_rows.end(), record.rowNo);
    return static_cast<int>(found - m_rows.begin());
}

std::vector<const CPreklItem*> ItemRows::records(std::span<const int> rows) const {
    std::vector<const CPreklItem*> result;
    for (const int row : rows) {
        if (const CPreklItem* listed = record(row)) result.push_back(listed);
    }
    return result;
}

void ItemRows::sortRows(int column, bool descending) {
    struct Keyed {
        NaturalText text;
        std::int32_t number;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(m_rows.size());
    for (const std::int32_t number : m_rows) {
        const CPreklItem& record = *m_rowNumbers.find(number);
        keyed.push_back({NaturalText(cellText(record, column, m_kind)), number});
    }
    std::stable_sort(keyed.begin(), keyed.end(), [](const Keyed& a, const Keyed& b) {
        return compareNatural(b.text, a.text) == 1;
    });
    if (descending) std::reverse(keyed.begin(), keyed.end());
    std::transform(keyed.begin(), keyed.end(), m_rows.begin(),
                   [](const Keyed& row) { return row.number; });
}

void ItemRows::sort() {
    if (m_sortColumn >= 0) sortRows(m_sortColumn, m_sortDescending);
}

void ItemRows::onHeadingClick(int column) {
    if (column < 0 || column >= itemColumnCount(m_kind)) return;
    m_sortDescending = column == m_sortColumn && !m_sortDescending;
    m_sortColumn = column;
    sort();
}

}  // namespace lx
