#include "browser/CList1.h"

#include <utility>

#include "resources/icons.h"
#include "resources/ids.h"
#include "resources/menus.h"
#include "widgets/popup_key.h"

namespace lx {

namespace {

constexpr int rowHeight = 16;
constexpr Color selectedGround{187, 187, 221};
constexpr int indentAlone = 2;
constexpr int indentBehindIcon = 18;

int shapeIcon(std::int32_t shape) {
    const bool possible = shape > 0 && shape < 1000;
    return possible && iconExists(icon::shapeBase + shape) ? icon::shapeBase + shape : icon::module;
}

}  // namespace

CList1::CList1(Dialog& window, ListBox& list, CatalogueKind kind)
    : m_window(window), m_list(list), m_kind(kind) {
    m_list.setRowHeight(rowHeight);
    m_list.onSelect = [this] { onSelect(); };
    m_list.onKey = [this](const KeyEvent& event) { return key(event); };
    m_list.onContext = [this](Point p) { openPopup(p); };
}

void CList1::fill(std::span<CPreklItem* const> types) {
    std::vector<ListRow> rows;
    for (const CPreklItem* type : types) rows.push_back(rowOf(*type));
    m_list.fill(std::move(rows));
    m_list.select(0);
}

ListRow CList1::rowOf(const CPreklItem& type) const {
    ListRow row;
    row.text = type.nameOrEmpty();
    row.selectedBackground = selectedGround;
    const bool steel = m_kind == CatalogueKind::steel;
    row.indent = steel ? indentBehindIcon : indentAlone;
    if (steel) row.icon = shapeIcon(type.length);
    return row;
}

KeyAnswer CList1::key(const KeyEvent& event) {
    // Scrolled into view, so that its popup menu opens beside it.
    if (opensPopup(event)) m_list.select(m_list.selected());
    return event.key == key::del ? KeyAnswer::swallow : KeyAnswer::pass;
}

void CList1::openPopup(Point p) {
    const int row = m_list.rowAt(p);
    if (row >= 0 && row != m_list.selected()) {
        m_list.select(row);
        onSelect();
    }
    const auto enabled = [this, row](int command) {
        if (m_readOnly) return false;
        return command != id::deleteType || (row >= 0 && m_list.count() > 1);
    };
    const int command = m_window.popupMenu(typesPopup(), m_list, p, enabled);
    if (command != 0) onCommand(command);
}

}  // namespace lx
