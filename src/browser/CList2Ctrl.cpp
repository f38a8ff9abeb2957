#include "browser/CList2Ctrl.h"

#include <algorithm>
#include <numeric>

#include "catalogue/item_cells.h"
#include "resources/ids.h"
#include "resources/menus.h"
#include "resources/strings.h"
#include "widgets/popup_key.h"

namespace lx {

CList2Ctrl::CList2Ctrl(Platform& platform, Dialog& window, ListView& list, CatalogueKind kind)
    : m_platform(platform), m_window(window), m_list(list), m_kind(kind), m_rows(kind) {
    m_list.cell = [this](int row, int column) {
        const CPreklItem* item = m_rows.record(row);
        return item ? cellText(*item, column, m_kind) : Text();
    };
    m_list.onDoubleClick = [this] { change(id::editItem); };
    m_list.onHeading = [this](int column) { clickHeading(column); };
    m_list.onKey = [this](const KeyEvent& event) { return key(event); };
    m_list.onContext = [this](Point p) { openPopup(p); };
}

// ---- columns

void CList2Ctrl::createColumns(const std::vector<int>& widths) {
    std::vector<ListColumn> columns;
    for (const int width : widths) {
        const int column = static_cast<int>(columns.size());
        columns.push_back({Text(itemHeading(column, m_kind)), width});
    }
    m_list.setColumns(columns);
}

std::vector<int> CList2Ctrl::columnWidths() const {
    std::vector<int> widths;
    for (int column = 0; column < m_list.columnCount(); ++column) {
        widths.push_back(m_list.columnWidth(column));
    }
    return widths;
}

// ---- rows

void CList2Ctrl::show(int row) {
    m_list.setRowCount(m_rows.count());
    m_list.select(row);
    m_list.redraw();
}

void CList2Ctrl::refresh(CPreklItem* chain, std::int32_t type) {
    m_rows.refresh(chain, type);
    show(0);
}

void CList2Ctrl::order() {
    m_rows.sort();
    show(0);
}

void CList2Ctrl::add(CPreklItem& item) {
    m_rows.add(item);
    m_rows.sort();
    show(m_rows.rowOf(item));
}

void CList2Ctrl::remove(const CPreklItem& item) {
    const int row = m_rows.rowOf(item);
    if (row < 0) return;
    m_rows.remove(row);
    show(std::min(row, m_rows.count() - 1));
}

void CList2Ctrl::select(const CPreklItem& item) {
    if (const int row = m_rows.rowOf(item); row >= 0) m_list.select(row);
}

void CList2Ctrl::selectRow(int row) {
    m_list.select(row >= 0 && row < m_rows.count() ? row : 0);
}

int CList2Ctrl::firstSelected() const {
    const std::vector<int> rows = m_list.selectedRows();
    return rows.empty() ? -1 : rows.front();
}

std::vector<const CPreklItem*> CList2Ctrl::allSelected() const {
    return m_rows.records(m_list.selectedRows());
}

// ---- the user's acts

KeyAnswer CList2Ctrl::key(const KeyEvent& event) {
    // Scrolled into view, so that its popup menu opens beside it.
    if (opensPopup(event)) m_list.select(firstSelected());
    const bool plain = !event.ctrl && !event.shift && !event.alt;
    if (event.key == key::del && plain) {
        change(id::deleteItem);
        return KeyAnswer::swallow;
    }
    if (!event.ctrl || event.shift || event.alt) return KeyAnswer::pass;
    if (event.key == 'A') {
        selectAll();
        return KeyAnswer::swallow;
    }
    if (event.key == 'C') {
        copySelectedRows();
        return KeyAnswer::swallow;
    }
    return KeyAnswer::pass;
}

void CList2Ctrl::change(int command) {
    if (!m_readOnly) return onCommand(command);
    m_platform.messageBox(Owner{&m_window, nullptr}, text::catalogueReadOnly, text::warning,
                          MessageIcon::stop, MessageButtons::ok);
}

// The commands act on the first selected row, so the one under the pointer is to be the only one.
void CList2Ctrl::openPopup(Point p) {
    const int row = m_list.rowAt(p);
    if (row >= 0) m_list.select(row);
    const auto enabled = [this, row](int command) {
        if (m_readOnly) return false;
        return command != id::deleteItem || row >= 0;
    };
    const int command = m_window.popupMenu(itemsPopup(), m_list, p, enabled);
    if (command != 0) onCommand(command);
}

// What is selected stays so, wherever it comes to stand.
void CList2Ctrl::clickHeading(int column) {
    std::vector<bool> marked(static_cast<std::size_t>(m_rows.count()) + 1);
    for (const CPreklItem* item : allSelected()) {
        marked[static_cast<std::size_t>(item->rowNo)] = true;
    }
    m_rows.onHeadingClick(column);
    std::vector<int> rows;
    for (int row = 0; row < m_rows.count(); ++row) {
        if (marked[static_cast<std::size_t>(m_rows.record(row)->rowNo)]) rows.push_back(row);
    }
    if (rows.size() == 1) {
        m_list.select(rows.front());
    } else {
        m_list.selectRows(rows);
    }
    m_list.redraw();
    showArrow();
}

void CList2Ctrl::showArrow() {
    const HeadingArrow arrow =
        m_rows.sortDescending() ? HeadingArrow::descending : HeadingArrow::ascending;
    for (int column = 0; column < m_list.columnCount(); ++column) {
        m_list.setHeadingArrow(column, column == m_rows.sortColumn() ? arrow : HeadingArrow::none);
    }
}

void CList2Ctrl::selectAll() {
    std::vector<int> rows(static_cast<std::size_t>(m_rows.count()));
    std::iota(rows.begin(), rows.end(), 0);
    m_list.selectRows(rows);
}

void CList2Ctrl::copySelectedRows() {
    if (!m_platform.setClipboardText(rowsAsText(allSelected(), m_kind))) onCopyFailed();
}

}  // namespace lx
