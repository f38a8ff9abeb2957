// The rows of the browser's item list: which records of the selected type are listed, and in which
// order.
#pragma once

#include <span>
#include <vector>

#include "catalogue/CPreklItem.h"

namespace lx {

// Numbers the listed records 1, 2, 3, ... in listing order, each in its rowNo.
class CEntManager {
public:
    CEntManager() = default;
    CEntManager(const CEntManager&) = default;
    CEntManager& operator=(const CEntManager&) = default;
    virtual ~CEntManager() = default;

    int count() const { return static_cast<int>(m_listed.size()); }
    void add(CPreklItem& record);
    // Null when no record has that number.
    CPreklItem* find(std::int32_t number) const;
    // Those behind it move up by one. The removed record itself is not touched.
    void remove(std::int32_t number);

private:
    std::vector<CPreklItem*> m_listed;
};

// Points into the chain: a record is to be removed here before it is destroyed, and the rows to be
// refreshed when the chain is another.
class ItemRows {
public:
    explicit ItemRows(CatalogueKind kind) : m_kind(kind) {}

    // Lists the items of that type (from 1) in chain order. The sort column stays what it is, but
    // the rows are not sorted by it.
    void refresh(CPreklItem* chain, std::int32_t type);
    // A row at the end.
    void add(CPreklItem& record);
    void remove(int row);

    int count() const { return static_cast<int>(m_rows.size()); }
    // Null when there is no such row.
    CPreklItem* record(int row) const;
    // -1 when the record is not listed.
    int rowOf(const CPreklItem& record) const;
    // The records of these rows, in the order given.
    std::vector<const CPreklItem*> records(std::span<const int> rows) const;

    // Ascending, rows of equal texts keep their order; descending is exactly the reverse of that.
    void sortRows(int column, bool descending);
    // By the sort column, as after a change of the rows; nothing happens while there is none.
    void sort();
    // Makes the column the sort column: ascending, or the other way when it was that already.
    void onHeadingClick(int column);
    int sortColumn() const { return m_sortColumn; }  // -1 = none
    bool sortDescending() const { return m_sortDescending; }

private:
    CatalogueKind m_kind;
    // The number of the record in that row; -1 when there is no such row.
    std::int32_t readField(int row) const;

    CEntManager m_rowNumbers;
    std::vector<std::int32_t> m_rows;  // record numbers
    int m_sortColumn = -1;
    bool m_sortDescending = true;
};

}  // namespace lx
