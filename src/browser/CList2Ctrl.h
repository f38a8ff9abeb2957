// The browser's list of items: the rows of the selected type, ordered by a heading, a popup menu,
// keys, and copying to the clipboard.
#pragma once

#include <functional>
#include <vector>

#include "catalogue/item_rows.h"
#include "platform/platform.h"

namespace lx {

class CList2Ctrl {
public:
    // All must outlive the object, which takes the list's handlers.
    CList2Ctrl(Platform& platform, Dialog& window, ListView& list, CatalogueKind kind);
    CList2Ctrl(const CList2Ctrl&) = delete;
    CList2Ctrl& operator=(const CList2Ctrl&) = delete;

    void setReadOnly(bool on) { m_readOnly = on; }

    // widths: pixels, by column number.
    void createColumns(const std::vector<int>& widths);
    void setColumnOrder(const std::vector<int>& order) { m_list.setColumnOrder(order); }
    std::vector<int> columnOrder() const { return m_list.columnOrder(); }
    std::vector<int> columnWidths() const;

    // Lists the items of that type (from 1) in chain order and selects the first.
    void refresh(CPreklItem* chain, std::int32_t type);
    // By the sort column, if there is one; selects the first row.
    void order();
    // At the end, or in its place in the order; selected.
    void add(CPreklItem& item);
    // Before the item is destroyed. Selects the row in its place, else the one before.
    void remove(const CPreklItem& item);
    // Selects this one alone and scrolls it into view; nothing when it is not listed.
    void select(const CPreklItem& item);
    // The same by its row; the first row when there is none of that number.
    void selectRow(int row);

    // -1 = none.
    int firstSelected() const;
    const ItemRows& rows() const { return m_rows; }
    CPreklItem* selected() const { return m_rows.record(firstSelected()); }
    // In row order.
    std::vector<const CPreklItem*> allSelected() const;

    // Edit by a double click, delete by its key, and what is chosen from the popup menu.
    std::function<void(int command)> onCommand;
    // The clipboard did not take the text.
    std::function<void()> onCopyFailed;

private:
    void show(int row);
    KeyAnswer key(const KeyEvent& event);
    void openPopup(Point p);
    void change(int command);
    void clickHeading(int column);
    void showArrow();
    void selectAll();
    void copySelectedRows();

    Platform& m_platform;
    Dialog& m_window;
    ListView& m_list;
    CatalogueKind m_kind;
    ItemRows m_rows;
    bool m_readOnly = false;
};

}  // namespace lx
